#include "companions/export/export_choices.h"

#include <QDir>
#include <QStandardPaths>
#include <algorithm>

#include "ui/choices.h"

namespace bramlee {
namespace {

const QString kWhich = QStringLiteral("export/which");
const QString kKind = QStringLiteral("export/kind");
const QString kPixels = QStringLiteral("export/pixels");
const QString kInk = QStringLiteral("export/ink");
const QString kBackground = QStringLiteral("export/ground");
const QString kNumbers = QStringLiteral("export/numbers");
const QString kSound = QStringLiteral("export/sound");
const QString kFolder = QStringLiteral("export/folder");

/// What the configuration has for flash cards.
constexpr int kCards = static_cast<int>(FilmKind::Steps) + 1;

/// A choice that someone wrote into the configuration by hand may be of no use.
Which WhichOf(int value) {
  const bool isOne = value >= 0 && value <= static_cast<int>(Which::WholeBoard);
  return isOne ? static_cast<Which>(value) : Which::ThisLetter;
}

std::optional<FilmKind> KindOf(int value) {
  if (value == kCards) return std::nullopt;
  return value >= 0 && value < kCards ? static_cast<FilmKind>(value) : FilmKind::Gif;
}

QString UsualFolder() {
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return QDir(pictures).exists() && !pictures.isEmpty() ? pictures : QDir::homePath();
}

}  // namespace

std::optional<QColor> ColourNamed(const QString& name) {
  for (const NamedColour& each : kNamedColours) {
    if (name == QLatin1String(each.name)) return ColourOf(each.colour);
  }
  return std::nullopt;
}

ExportChoices LastExportChoices() {
  const Choices& choices = Choices::Instance();
  const ExportChoices first;
  return {
      .which = WhichOf(choices.Of(kWhich, static_cast<int>(first.which)).toInt()),
      .kind = KindOf(choices.Of(kKind, static_cast<int>(FilmKind::Gif)).toInt()),
      .pixels = std::clamp(choices.Of(kPixels, first.pixels).toInt(), kLeastPixels, kMostPixels),
      .ink = choices.Of(kInk, first.ink).toString(),
      .ground = choices.Of(kBackground, first.ground).toString(),
      .numbers = choices.Of(kNumbers, first.numbers).toBool(),
      .sound = choices.Of(kSound, first.sound).toBool(),
      .folder = choices.Of(kFolder, UsualFolder()).toString()};
}

void KeepExportChoices(const ExportChoices& chosen) {
  Choices& choices = Choices::Instance();
  choices.Choose(kWhich, static_cast<int>(chosen.which));
  choices.Choose(kKind, chosen.kind ? static_cast<int>(*chosen.kind) : kCards);
  choices.Choose(kPixels, chosen.pixels);
  choices.Choose(kInk, chosen.ink);
  choices.Choose(kBackground, chosen.ground);
  choices.Choose(kNumbers, chosen.numbers);
  choices.Choose(kSound, chosen.sound);
  choices.Choose(kFolder, chosen.folder);
}

}  // namespace bramlee
