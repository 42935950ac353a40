#include "companions/worksheet/panes.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QWheelEvent>
#include <algorithm>

namespace bramlee {
namespace {

class Choice : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

}  // namespace

QPushButton* MakeButton(const char* name, const QString& caption, const QString& accessibleName,
                        QWidget* parent) {
  auto* button = NamedControl(new QPushButton(caption, parent), name, accessibleName);
  button->setAutoDefault(false);
  button->setMinimumHeight(kControlHeight);
  return button;
}

QCheckBox* MakeCheckBox(const char* name, const QString& caption, QWidget* parent) {
  auto* box = new QCheckBox(caption, parent);
  return NamedControl(box, name, QString(caption).remove(u'&'));
}

QComboBox* MakeChoice(const char* name, const QString& accessibleName, QWidget* parent) {
  auto* choice = NamedControl(new Choice(parent), name, accessibleName);
  choice->setMinimumHeight(kControlHeight);
  return choice;
}

void PickData(QComboBox* choice, const QVariant& data) {
  choice->setCurrentIndex(std::max(0, choice->findData(data)));
}

void AddRow(QFormLayout* form, const QString& caption, QWidget* control) {
  auto* label = new QLabel(caption);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(control);
  label->setMinimumHeight(kControlHeight);  // or it would stand above the middle of its control
  control->setMinimumHeight(kControlHeight);
  form->addRow(label, control);
}

}  // namespace bramlee
