#include "tools/strokes/report.h"

#include <charconv>

#include "engine/last_point.h"

namespace bramlee {
namespace {

/// The shortest text that reads back as the same number.
std::string Shortest(double number) {
  char text[32];
  return {text, std::to_chars(std::begin(text), std::end(text), number).ptr};
}

std::string List(std::span<const double> numbers) {
  std::string list;
  for (const double number : numbers) {
    if (!list.empty()) list += ',';
    list += Shortest(number);
  }
  return '[' + list + ']';
}

/// Counts the dots of each run and keeps nothing else of them.
class Teller : public DrawingSurface {
 public:
  explicit Teller(double step) : step_(step) {}

  void PSet(float /*x*/, float /*y*/) override { ++dots_; }
  double Step() const override { return step_; }
  void BeginRun(Primitive primitive, std::span<const double> arguments) override {
    if (!strokes_.empty()) strokes_ += ',';
    strokes_ += std::string("{\"run\":\"") + PrimitiveName(primitive) +
                "\",\"args\":" + List(arguments) + ",\"dots\":";
    dots_ = 0;
  }
  void EndRun() override { strokes_ += std::to_string(dots_) + '}'; }

  const std::string& Strokes() const { return strokes_; }

 private:
  double step_;
  std::int64_t dots_ = 0;
  std::string strokes_;
};

}  // namespace

std::string StrokesAsJson(const Request& request, int tile) {
  Teller teller(request.step);
  ClearLastPoint();
  WriteWholeTile(*request.set, tile, request.form, teller);

  std::string line = "{\"board\":\"" + std::string(request.set->name) + '"';
  const auto add = [&line](const char* name, const std::string& value) {
    line += std::string(",\"") + name + "\":" + value;
  };
  add("tile", std::to_string(tile));
  add("alt", request.form.alternative ? "1" : "0");
  if (request.form.place != 0) add("place", std::to_string(request.form.place));
  add("step", Shortest(request.step));
  add("strokes", '[' + teller.Strokes() + ']');
  const double last[] = {LastX, LastY, LastX2, LastY2};
  add("last", List(last));
  return line + "}\n";
}

}  // namespace bramlee
