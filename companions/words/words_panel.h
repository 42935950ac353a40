// The window in which a word is typed.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <span>

#include "strokes/word.h"

namespace bramlee {

/// A line to type in, "words_text", with what belongs to it. Its input is never held (see
/// ui/held_input.h): one can type the next word while a letter is written. Esc hides it.
class WordsPanel : public QWidget {
 public:
  /// A window of `board`, hidden at first. `write` is called when Write was pressed, or Return in
  /// the line, `writeMy` when My name was.
  WordsPanel(QWidget* board, std::function<void()> write, std::function<void()> writeMy);

  /// Comes into view ready to type in, over the upper part of its board or just above the strip.
  void Present(bool above);

  QString Text() const { return text_->text(); }
  void SetText(const QString& text) { text_->setText(text); }

  /// Whether the pen is at work: nothing can be asked of it then.
  void SetWriting(bool on);
  /// Shows a line to the user; an empty one for none.
  void Say(const QString& line) { said_->setText(line); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void FollowText();

  QLineEdit* text_;
  QPushButton* write_;
  QPushButton* myName_;
  QLabel* said_;
  bool writing_ = false;
};

/// What is said of characters that are left out, each named once; empty for none.
QString NamesOf(std::span<const LeftOut> leftOut);

}  // namespace bramlee
