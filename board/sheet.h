// The sheet of a board: the surface that letters are written on, dot by dot.
#pragma once

#include <QImage>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <limits>
#include <optional>

#include "board/pace.h"
#include "ink/ink.h"
#include "ui/controls.h"
#include "ui/held_input.h"
#include "writing/rewindable_surface.h"

class QLineEdit;

namespace bramlee {

/// A board's client area as a drawing surface, in logical pixels from its top left. Tiles stand
/// on it as child widgets; strokes run behind them. What was written stays through resizes,
/// scrolling and other pixel ratios, also where it lies outside of the window.
class Sheet final : public QWidget, public RewindableSurface {
  Q_OBJECT
 public:
  explicit Sheet(QWidget* parent = nullptr);

  void PSet(float x, float y) override {
    ink_.PSet(x, y);
    if (--dotsToFrame_ == 0) EndFrame();
  }
  double Step() const override { return ink_.Step(); }
  void BeginRun(Primitive primitive, std::span<const double> arguments) override {
    ink_.BeginRun(primitive, arguments);
  }
  void EndRun() override;
  void SetPen(ColourWord colour) override { ink_.SetPen(colour); }
  SurfaceMark Mark() override { return ink_.Mark(); }
  bool RewindTo(SurfaceMark mark) override;
  /// Drops all marks: from now on there is no way back to what stands already.
  void DropMarks() { ink_.DropMarks(); }

  /// The text box whose numeric value is the step; without one it is 0.01. From now on the box
  /// refuses a text that is no finite number of kSmallestStep or more: it goes back to the text
  /// that it had, or to "0.01", so that no other step ever reaches a run.
  void SetStepBox(QLineEdit* txtspd);

  /// A smaller step could leave a coordinate as it is, and the run would never end.
  static constexpr double kSmallestStep = 1e-6;

  /// The ground beneath the dots, white at first; those on it stay.
  void SetBackColor(ColourWord colour);
  /// The colour of the dots to come, red at first.
  ColourWord ForeColor() const { return ink_.Colour(); }
  void SetForeColor(ColourWord colour) { SetPen(colour); }

  /// Takes every dot away.
  void Wipe();

  /// The dots alone, for pictures.
  const Ink& Dots() const { return ink_; }

  /// Strokes are written while one of these lives (they nest): no input, timer tick or close
  /// reaches a form before the outermost one ends, see ui/held_input.h. On a visible window
  /// the pen keeps its pace and rests for what is left of it at the end of the outermost one; it
  /// hurries once the user waits for the end.
  class Writing {
   public:
    explicit Writing(Sheet& sheet);
    ~Writing();
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

   private:
    Sheet& sheet_;
    HoldInput hold_;
  };

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

  void BeginWriting();
  void EndWriting();
  void EndFrame();
  void Rest(std::int64_t dots);
  void ShowNewDots();
  QRect Refresh();
  bool MakeReady(double ratio);
  void TakeStep(const QString& text);

  QLineEdit* stepBox_ = nullptr;
  QString stepText_ = QStringLiteral("0.01");

  Ink ink_;
  QColor backColor_{Qt::white};
  QImage shown_;                       ///< all of the sheet as it was shown last; null at first
  std::optional<QColor> shownGround_;  ///< what it was shown over

  int writing_ = 0;
  Pace pace_;
  std::int64_t dotsToFrame_ = kNever;
};

}  // namespace bramlee
