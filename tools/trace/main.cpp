// bramlee-trace: judges a pen that traces a letter.
#include <QCoreApplication>
#include <iostream>
#include <string>

#include "strokes/letter.h"
#include "tools/strokes/number_text.h"
#include "tools/trace/pen_event.h"
#include "tools/trace/trace_request.h"
#include "writing/tracer.h"

namespace bramlee {
namespace {

std::string JudgementAsJson(const TraceJudgement& judgement) {
  return "{\"stroke\": " + std::to_string(judgement.stroke + 1) + ", \"verdict\": \"" +
         NameOf(judgement.verdict) + "\", \"progress\": " + ToThousandth(judgement.progress) +
         ", \"misses\": " + std::to_string(judgement.misses) + ", \"help\": \"" +
         NameOf(judgement.help) + "\"}\n";
}

std::string EndAsJson(const Tracer& tracer) {
  return std::string("{\"finished\": ") + (tracer.IsFinished() ? "true" : "false") +
         ", \"helped\": " + std::to_string(tracer.Helped()) + "}\n";
}

/// A pen and the letter that it traces.
class Tracing {
 public:
  explicit Tracing(const TraceRequest& request)
      : tracer_(GuideOf(LetterOf(request.letter)), request.level) {
    tracer_.SetLeastRadius(request.leastRadius);
  }

  /// Whether the event can follow those so far: a pen comes down, moves and is lifted.
  bool CanTake(const PenEvent& event) const {
    return isDown_ == (event.kind != PenEvent::Kind::Down);
  }

  ExitStatus Take(const PenEvent& event) {
    isDown_ = event.kind != PenEvent::Kind::Up;
    if (event.kind == PenEvent::Kind::Down) tracer_.Down(event.place);
    if (event.kind == PenEvent::Kind::Move) tracer_.Move(event.place);
    if (isDown_) return kDone;
    const auto judgement = tracer_.Up();
    return judgement ? kTool.Print(JudgementAsJson(*judgement)) : kDone;
  }

  ExitStatus End() const { return kTool.Print(EndAsJson(tracer_)); }

 private:
  Tracer tracer_;
  bool isDown_ = false;
};

ExitStatus Trace(const TraceRequest& request) {
  Tracing tracing(request);
  std::string line;
  for (int number = 1; std::getline(std::cin, line); ++number) {
    const auto event = ReadPenEvent(QByteArray::fromStdString(line));
    const auto fail = [number](const char* why) {
      return kTool.Fail(kBadArguments,
                        QStringLiteral("line %1: %2").arg(number).arg(QLatin1String(why)));
    };
    if (!event) return fail("neither {\"down\": [x, y]} nor {\"move\": [x, y]} nor {\"up\": true}");
    if (!tracing.CanTake(*event)) {
      return fail(event->kind == PenEvent::Kind::Down ? "the pen is down already"
                                                      : "the pen is not down");
    }
    const ExitStatus status = tracing.Take(*event);
    if (status != kDone) return status;
  }
  return tracing.End();
}

ExitStatus Answer(const QStringList& arguments) {
  const TraceRequest request = ReadTraceRequest(arguments);
  if (!request.error.isEmpty()) return kTool.Fail(kBadArguments, request.error);
  return request.text.isEmpty() ? Trace(request) : kTool.Print(request.text.toStdString());
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  const QCoreApplication app(argc, argv);
  return bramlee::Answer(QCoreApplication::arguments());
}
