#include "tools/trace/pen_event.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace bramlee {
namespace {

std::optional<Point> ReadPlace(const QJsonValue& value) {
  const QJsonArray numbers = value.toArray();
  if (numbers.size() != 2 || !numbers.at(0).isDouble() || !numbers.at(1).isDouble()) {
    return std::nullopt;
  }
  const Point place{numbers.at(0).toDouble(), numbers.at(1).toDouble()};
  if (!std::isfinite(place.x) || !std::isfinite(place.y)) return std::nullopt;
  return place;
}

}  // namespace

std::optional<PenEvent> ReadPenEvent(const QByteArray& line) {
  const QJsonObject object = QJsonDocument::fromJson(line).object();
  if (object.size() != 1) return std::nullopt;
  const QString name = object.constBegin().key();
  const QJsonValue value = object.constBegin().value();
  if (name == QLatin1String("up")) {
    return value.isBool() && value.toBool() ? std::optional(PenEvent()) : std::nullopt;
  }
  const bool isDown = name == QLatin1String("down");
  const std::optional<Point> place = ReadPlace(value);
  if (!place || (!isDown && name != QLatin1String("move"))) return std::nullopt;
  return PenEvent{.kind = isDown ? PenEvent::Kind::Down : PenEvent::Kind::Move, .place = *place};
}

}  // namespace bramlee
