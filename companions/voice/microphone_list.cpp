#include "companions/voice/microphone_list.h"

#include <algorithm>

#include "ui/choices.h"
#include "ui/named.h"

namespace bramlee {
namespace {

const QString kMicrophone = QStringLiteral("voice/microphone");
constexpr int kCharacters = 18;  ///< width: names of microphones may be very long

}  // namespace

MicrophoneList::MicrophoneList(QWidget* parent) : QComboBox(parent) {
  Named(this, "voice_microphone", "Microphone");
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(kCharacters);
  connect(this, &QComboBox::activated, this,
          [this] { Choices::Instance().Choose(kMicrophone, QString::fromUtf8(Id())); });
}

void MicrophoneList::Show(const QList<Microphone>& there) {
  clear();
  if (!there.isEmpty()) addItem(QStringLiteral("The usual one"), QByteArray());
  for (const Microphone& each : there) addItem(each.name, each.id);
  const QByteArray chosen = Choices::Instance().Of(kMicrophone, QString()).toString().toUtf8();
  setCurrentIndex(std::max(0, findData(chosen)));
}

}  // namespace bramlee
