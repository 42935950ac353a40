#include "companions/worksheet/heading_pane.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

#include "card/card_file.h"
#include "companions/worksheet/panes.h"
#include "files/environment.h"

namespace bramlee {
namespace {

constexpr int kLongestName = 100;  ///< as the card's fields are

}  // namespace

HeadingPane::HeadingPane(QWidget* parent)
    : QWidget(parent),
      shown_(MakeCheckBox("heading", QStringLiteral("A &line for name, class and date"), this)),
      fromCard_(MakeCheckBox("card", QStringLiteral("Name and class from the &card"), this)),
      name_(NamedControl(new QLineEdit(this), "name", QStringLiteral("Name"))),
      class_(NamedControl(new QLineEdit(this), "class", QStringLiteral("Class"))),
      today_(MakeCheckBox("today", QStringLiteral("The &date of today"), this)) {
  for (QLineEdit* text : {name_, class_}) text->setMaxLength(kLongestName);
  auto* note = new QLabel(QStringLiteral("What is left empty is a line to write on."));
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  auto* form = new QFormLayout(this);
  form->addRow(shown_);
  form->addRow(fromCard_);
  AddRow(form, QStringLiteral("Na&me"), name_);
  AddRow(form, QStringLiteral("Cla&ss"), class_);
  form->addRow(today_);
  form->addRow(note);
  for (QCheckBox* box : {shown_, fromCard_, today_}) {
    connect(box, &QCheckBox::toggled, this, &HeadingPane::Follow);
  }
  for (const QLineEdit* text : {name_, class_}) {
    connect(text, &QLineEdit::textChanged, this, &HeadingPane::Changed);
  }
  Follow();
}

void HeadingPane::Show(const WorksheetRecord& record) {
  shown_->setChecked(record.heading.shown);
  fromCard_->setChecked(record.fromCard);
  name_->setText(record.heading.name);
  class_->setText(record.heading.schoolClass);
  today_->setChecked(record.today);
}

void HeadingPane::Read(WorksheetRecord& record) const {
  record.heading = {.shown = shown_->isChecked(),
                    .name = name_->text().trimmed(),
                    .schoolClass = class_->text().trimmed(),
                    .date = {}};
  record.fromCard = fromCard_->isChecked();
  record.today = today_->isChecked();
}

void HeadingPane::Follow() {
  const bool shown = shown_->isChecked();
  fromCard_->setEnabled(shown);
  today_->setEnabled(shown);
  for (QLineEdit* text : {name_, class_}) text->setEnabled(shown && !fromCard_->isChecked());
  Q_EMIT Changed();
}

Heading HeadingOf(const WorksheetRecord& record) {
  Heading heading = record.heading;
  if (record.fromCard) {
    const CardHolder holder = HolderOfCard();
    heading.name = holder.name;
    heading.schoolClass = holder.className;
  }
  if (record.today) {
    heading.date = QLocale().toString(TheEnvironment().today(), QLocale::ShortFormat);
  }
  return heading;
}

}  // namespace bramlee
