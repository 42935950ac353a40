// Whether letters are written as given or as in the book.
#pragma once

#include <QObject>

namespace bramlee {

/// One for the whole program: all boards and charts follow it. Off at first.
class BookLetters : public QObject {
  Q_OBJECT
 public:
  static BookLetters& Instance();

  bool On() const { return on_; }
  void SetOn(bool on);

 Q_SIGNALS:
  void Changed();

 private:
  using QObject::QObject;

  bool on_ = false;
};

}  // namespace bramlee
