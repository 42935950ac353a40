// The sheet of a board: the surface that letters are written on, dot by dot.
#pragma once

#include <QWidget>

#include "engine/drawing_surface.h"
#include "shell/controls.h"

class QLineEdit;

namespace bramlee {

/// A board's client area as a drawing surface, in logical pixels from its top left. Tiles stand
/// on it as child widgets; strokes run behind them.
class Sheet : public QWidget, public DrawingSurface {
 public:
  explicit Sheet(QWidget* parent = nullptr);
  ~Sheet() override;

  void PSet(float x, float y) override;
  double Step() const override;

  /// The text box whose numeric value is the step; without one it is 0.01.
  void SetStepBox(const QLineEdit* txtspd) { stepBox_ = txtspd; }

  void SetBackColor(ColourWord colour);
  ColourWord ForeColor() const { return foreColor_; }
  void SetForeColor(ColourWord colour) { foreColor_ = colour; }

  /// Takes every dot away.
  void Wipe();

  /// Strokes are written while one of these lives (they nest): no input, timer tick or close
  /// reaches a form before the outermost one ends.
  class Writing {
   public:
    explicit Writing(Sheet& sheet);
    ~Writing();
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

   private:
    Sheet& sheet_;
  };

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const QLineEdit* stepBox_ = nullptr;
  ColourWord foreColor_ = 0x000000FF;
  QColor backColor_;
  QImage dots_;
};

}  // namespace bramlee
