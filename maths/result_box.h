// The box that shows a drill's result or a whole table.
#pragma once

#include <QPlainTextEdit>
#include <QString>

namespace bramlee {

/// A box of several lines with scroll bars, to be read only. Its letters are as large as lets all
/// lines be seen in its height at the time that they are set.
class ResultBox : public QPlainTextEdit {
  Q_OBJECT
  Q_PROPERTY(QString text READ Text WRITE SetText)
 public:
  explicit ResultBox(QWidget* parent = nullptr);

  /// The text as it was given, its carriage returns too, which the lines shown do not keep.
  QString Text() const { return text_; }
  void SetText(const QString& text);

 private:
  QFont FittingFont(int lines) const;

  QString text_;
};

}  // namespace bramlee
