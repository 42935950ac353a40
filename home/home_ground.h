// The ground of the home form: between its columns of tiles a pencil writes.
#pragma once

#include "ui/controls.h"

namespace bramlee {

class HomeGround : public Ground {
 public:
  using Ground::Ground;

  /// Where the pencil has room, in pixels; in an empty or narrow room there is none.
  void SetPencilRoom(const QRect& room);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect pencilRoom_;
};

}  // namespace bramlee
