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

/// What the buttons of the window do.
struct WordsActs {
  std::function<void()> write;    ///< Write, or Return in the line
  std::function<void()> writeMy;  ///< My name
  std::function<void()> print;    ///< Print
};

/// A line to type in, "words_text", with what belongs to it. Its input is never held (see
/// ui/held_input.h): one can type the next word while a letter is written. Esc hides it.
class WordsPanel : public QWidget {
 public:
  /// A window of `board`, hidden at first.
  WordsPanel(QWidget* board, WordsActs acts);

  /// Comes into view ready to type in, over the upper part of its board or just above the strip.
  /// Print is there if there is a way to print.
  void Present(bool above, bool prints);

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
  QPushButton* print_;
  QLabel* said_;
  bool writing_ = false;
};

/// What is said of characters that are left out, each named once; empty for none.
QString NamesOf(std::span<const LeftOut> leftOut);

}  // namespace bramlee
