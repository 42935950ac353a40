// A card that is read a second time, and the line that says what failed.
#include <QAccessible>

#include "card/card_form.h"
#include "card/card_layout.h"

namespace bramlee {

bool CardForm::Read() {
  failure_ = {};
  ProvideCard(&failure_);
  StudentRec rec;
  LoadCard(rec);
  return isRead_;
}

bool CardForm::ReadAgain() {
  const Typed typed = WhatWasTyped();
  const bool read = Read();
  PutBack(typed);
  return read;
}

bool CardForm::ReadsOnlyNow(const Action& action) {
  if (isRead_) return false;
  if (!ReadAgain()) {
    SayWhyNot(action);
    return false;
  }
  Say(QStringLiteral("The card could only be read now. Check it, then press %1 once more")
          .arg(QLatin1StringView(action.button)));
  return true;
}

void CardForm::Refused(const Action& action) {
  if (!failure_.itemChanged || !ReadAgain()) return SayWhyNot(action);
  Say(QStringLiteral("%1: another program changed the card. Check it, then press %2 once more")
          .arg(QLatin1StringView(action.notDone), QLatin1StringView(action.button)));
}

void CardForm::SayWhyNot(const Action& action) {
  Say(QLatin1StringView(action.notDone) + QStringLiteral(": ") + failure_.why);
}

void CardForm::Say(const QString& text) const {
  auto* line = Named<Label>(QStringLiteral("lblsaid"));
  line->setText(text);
  PlaceSaid(*this);
  if (text.isEmpty()) return;
  QAccessibleEvent alert(line, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

CardForm::Typed CardForm::WhatWasTyped() const {
  Typed typed;
  for (std::size_t i = 0; i < head_.size(); ++i) {
    const QString text = TextOf(Indexed("txt", static_cast<int>(i)));
    if (text != head_[i]) typed.head[i] = text;
  }
  const bool isNew = Trim(CardRecNo()) == kNew;
  const ItemTexts shown = ShownTexts();
  if (isNew || shown != ListedTexts(RoundToLong(Val(CardRecNo())))) typed.item = shown;
  return typed;
}

void CardForm::PutBack(const Typed& typed) {
  for (std::size_t i = 0; i < typed.head.size(); ++i) {
    const std::optional<QString>& text = typed.head[i];
    if (text) SetText(Indexed("txt", static_cast<int>(i)), *text);
  }
  if (typed.item) ShowNewItem(*typed.item);
}

ItemTexts CardForm::ShownTexts() const {
  ItemTexts texts;
  for (int k = 0; k < kItemFields; ++k)
    texts[static_cast<std::size_t>(k)] = Field(k)->currentText();
  return texts;
}

ItemTexts CardForm::ListedTexts(std::int32_t recNo) const {
  ItemTexts texts;
  for (int k = 0; k < kItemFields; ++k)
    texts[static_cast<std::size_t>(k)] = Field(k)->itemText(recNo - 1);
  return texts;
}

void CardForm::ShowNewItem(const ItemTexts& texts) {
  for (int k = 0; k < kItemFields; ++k) {
    Field(k)->setCurrentIndex(-1);
    Field(k)->setEditText(texts[static_cast<std::size_t>(k)]);
  }
  SetCardRecNo(kNew);
}

}  // namespace bramlee
