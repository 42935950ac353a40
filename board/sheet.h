// The sheet of a board: the surface that letters are written on, dot by dot.
#pragma once

#include <QImage>
#include <QPointF>
#include <QString>
#include <QTransform>
#include <QWidget>
#include <optional>
#include <vector>

#include "ink/ink.h"
#include "ui/controls.h"
#include "writing/rewindable_surface.h"

class QLineEdit;
class QPainter;

namespace bramlee {

/// Something that is seen with a sheet and is no ink. Painted in sheet pixels; what it paints is
/// part of no picture of the dots.
class SheetLayer {
 public:
  virtual ~SheetLayer() = default;
  virtual void Paint(QPainter& painter) const = 0;
};

/// A board's client area as a drawing surface, in sheet pixels from its top left: logical pixels at
/// the scale (ui/scale.h) that it has at first. Tiles stand
/// on it as child widgets; strokes run behind them. What was written stays through resizes,
/// scrolling, other scales and pixel ratios, also where it lies outside of the window.
class Sheet final : public QWidget, public RewindableSurface {
  Q_OBJECT
 public:
  explicit Sheet(QWidget* parent = nullptr);

  void PSet(float x, float y) override { ink_.PSet(x, y); }
  double Step() const override { return ink_.Step(); }
  void BeginRun(Primitive primitive, std::span<const double> arguments) override {
    ink_.BeginRun(primitive, arguments);
  }
  void EndRun() override;
  /// The colour of the dots to come for now; ForeColor stays what was chosen.
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
  ColourWord ForeColor() const { return foreColor_; }
  void SetForeColor(ColourWord colour);

  /// Takes every dot away.
  void Wipe();

  /// Where the sheet's pixels lie in this widget: as they are, unless it has another scale.
  QTransform FromSheet() const;
  /// Which place of the sheet lies there in this widget.
  QPointF ToSheet(const QPointF& place) const { return FromSheet().inverted().map(place); }

  /// The dots alone, for pictures.
  const Ink& Dots() const { return ink_; }

  /// Has a layer seen beneath the dots, on the ground, or above them, as long as the sheet lives.
  void AddLayerBeneath(const SheetLayer& layer) { beneath_.push_back(&layer); }
  void AddLayerAbove(const SheetLayer& layer) { above_.push_back(&layer); }
  /// What a layer beneath paints is another from now on. After a change of a layer above, update()
  /// will do.
  void UpdateBeneath();

  /// Shows what is new at once, without waiting for the event loop.
  void ShowNewDots();

  /// While on, a run's end does not ask for a repaint: the caller shows what is new.
  void SetShownByCaller(bool on) { shownByCaller_ = on; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect Refresh();
  bool MakeReady();
  void PaintBeneath(const QRect& part);
  void TakeStep(const QString& text);

  QLineEdit* stepBox_ = nullptr;
  QString stepText_ = QStringLiteral("0.01");

  Ink ink_;
  ColourWord foreColor_ = kPenColour;
  QColor backColor_{Qt::white};
  QImage shown_;                       ///< all of the sheet as it was shown last; null at first
  std::optional<QColor> shownGround_;  ///< what it was shown over

  std::vector<const SheetLayer*> beneath_;
  std::vector<const SheetLayer*> above_;
  bool shownByCaller_ = false;
};

}  // namespace bramlee
