// The box that shows a drill's result or a whole table.
#pragma once

#include <QPlainTextEdit>
#include <QString>

namespace bramlee {

/// A box of several lines with scroll bars where they are needed, to be read only.
class ResultBox : public QPlainTextEdit {
  Q_OBJECT
  Q_PROPERTY(QString text READ Text WRITE SetText)
 public:
  explicit ResultBox(QWidget* parent = nullptr);

  /// The text as it was given, its carriage returns too, which the lines shown do not keep.
  QString Text() const { return text_; }
  /// Shows that text in the largest letters, from 30 down to 14 pixels, in which all lines fit the
  /// box's present height, as designed. Where even the smallest do not fit, the box scrolls.
  void SetText(const QString& text);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  /// The box's font in the size for that many lines.
  QFont FittingFont(int lines) const;

  QString text_;
};

}  // namespace bramlee
