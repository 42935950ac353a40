// The pages of a worksheet on the screen.
#pragma once

#include <QImage>
#include <QSizeF>
#include <QWidget>
#include <functional>

namespace bramlee {

/// Shows one page at a time, as large as the room allows. A page is painted when it is to be seen,
/// and kept as long as it looks the same. Page Up, Page Down, Home, End and the wheel turn pages.
class PagePreview : public QWidget {
  Q_OBJECT
 public:
  /// Paints that page, counted from 0, so that it fills the rectangle.
  using PaintPage = std::function<void(QPainter& painter, const QRectF& on, int page)>;

  explicit PagePreview(QWidget* parent = nullptr);

  /// From now on these pages are shown, each of that size in any unit. The page in view stays the
  /// one in view, or the last.
  void Show(int pages, const QSizeF& pageSize, PaintPage paint);
  /// From now on there are no pages, and why that is can be read in their place.
  void ShowWhyNot(const QString& why);

  int Pages() const { return pages_; }
  /// The page in view, from 0.
  int Page() const { return page_; }
  /// Turns to that page, to the first or last for one beyond.
  void TurnTo(int page);

  /// Where the page lies on the widget, in logical pixels; empty without pages.
  QRectF PlaceOfPage() const;

  QSize sizeHint() const override { return {420, 560}; }
  QSize minimumSizeHint() const override { return {180, 220}; }

 Q_SIGNALS:
  /// Another page is in view, or there are more or fewer of them.
  void Turned();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  const QImage& Picture(QSize pixels);
  void Rename();

  int pages_ = 0;
  int page_ = 0;
  QSizeF pageSize_;
  PaintPage paint_;
  QString whyNot_;
  int wheel_ = 0;   ///< how far the wheel went since the last turn, in eighths of a degree
  QImage picture_;  ///< the page in view, in device pixels; null when it is to be painted
};

}  // namespace bramlee
