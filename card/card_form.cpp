#include "card/card_form.h"

#include <array>

#include "card/card_file.h"
#include "card/card_layout.h"
#include "card/load_picture.h"
#include "files/drives.h"
#include "files/environment.h"
#include "files/numbers.h"
#include "files/trap.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/label_button.h"
#include "ui/message_box.h"

namespace bramlee {
namespace {

const QString kIdCard = QStringLiteral("img");
const QString kLogo = QStringLiteral("pic");
const QString kIdCardPath = QStringLiteral("txt(3)");
const QString kLogoPath = QStringLiteral("txt(4)");

constexpr int kItemField = 3;  ///< the one that is no number
constexpr int kNewButton = 12;
constexpr int kSaveButton = 13;
constexpr int kRemoveButton = 14;

/// Loads the card afresh. nullptr when it has gone, while a message was read for instance.
CardForm* LoadAgain() {
  Form* card = LoadedForm(kCardForm);
  if (card == nullptr) return nullptr;
  UnloadForm(card);
  ShowForm(kCardForm);
  return qobject_cast<CardForm*>(LoadedForm(kCardForm));
}

}  // namespace

CardForm::CardForm() : Form(kCardForm) {
  setWindowTitle(QStringLiteral("BRAM-LEE: BioData"));
  MakeCardControls(*this);
  RememberHead();
  for (int i = 0; i < kItemFields; ++i) {
    connect(Field(i), &Combo::Picked, this, [this, i] { cmb_Click(i); });
  }
  for (const int i : {kNewButton, kSaveButton, kRemoveButton}) {
    connect(Named<Label>(Indexed("lbl", i)), &Label::Clicked, this, [this, i] { lbl_Click(i); });
  }
  SetCardRecNo(QStringLiteral("1"));
  MakeMenus();
}

void CardForm::MakeMenus() {
  QMenu* file = AddMenu(QStringLiteral("mnufile1"), QStringLiteral("&File"));
  AddCommand(file, Indexed("mnufile", 1), QStringLiteral("&Back"), [this] { mnufile_Click(1); });
  AddCommand(file, Indexed("mnufile", 2), QStringLiteral("&Exit"), [this] { mnufile_Click(2); });
  QMenu* bio = AddMenu(QStringLiteral("mnubio1"), QStringLiteral("&BioData"));
  AddCommand(bio, Indexed("mnubio", 1), QStringLiteral("&New"), [this] { mnubio_Click(1); });
  AddCommand(bio, Indexed("mnubio", 2), QStringLiteral("&Save"), [this] { mnubio_Click(2); });
  bio->menuAction()->setVisible(false);
  AddBarItem(QStringLiteral("mnuref"), QStringLiteral("&Refresh"), [this] {
    mnuref_Click();
  })->setVisible(false);
}

void CardForm::Form_Load() {
  Trap(QStringLiteral("601:23"), [this](ErrInfo&) { LayOutCard(*this); });
  if (!Read()) SayWhyNot(kLoad);
}

void CardForm::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  PlaceSaid(*this);
}

void CardForm::lbl_Click(int index) {
  Trap(QStringLiteral("601:23"), [this, index](ErrInfo&) {
    if (index == kNewButton) NewClicked();
    if (index == kSaveButton) SaveClicked();
    if (index == kRemoveButton) RemoveClicked();
  });
}

void CardForm::cmb_Click(int index) {
  ShowItem(Field(index)->currentIndex() + 1);
  Say({});
}

void CardForm::mnufile_Click(int index) {
  if (index == 1) {
    ShowForm(kCardForm);
    UnloadForm(this);
  } else {
    UnloadAll();
    EndProgram();
  }
}

void CardForm::mnubio_Click(int /*index*/) {}

void CardForm::mnuref_Click() {
  const QString idCard = Trim(TextOf(kIdCardPath));
  const QString logo = Trim(TextOf(kLogoPath));
  if (FileMissing(idCard)) return MsgBox(QStringLiteral("ID-Card Not Found"));
  if (FileMissing(logo)) return MsgBox(QStringLiteral("School-Logo Not Found"));
  ShowPicture(idCard, kLogo);
  ShowPicture(logo, kIdCard);
}

std::int16_t CardForm::LoadCard(StudentRec& rec) {
  isRead_ = false;
  const auto load = [&](ErrInfo&) {
    for (int k = 0; k < kItemFields; ++k) Field(k)->clear();
    const FileSlot slot = TakeSlot(kCardSlot);
    const CardContents card = ReadCard(RecordFile(slot));
    SetCardRecNo(QStringLiteral("1"));
    rec = card.items.empty() ? card.head : card.items.back();
    if (card.hasHead) ShowCardHeader(card.head);
    ShowItems(card);
    isRead_ = card.hasHead;
  };
  return Trap({}, load, KeptIn(&failure_)) ? 0 : 1;
}

void CardForm::ShowItems(const CardContents& card) {
  std::array<qint64, 4> sums{};  // wider than the fields, so that they cannot overflow
  for (const StudentRec& item : card.items) {
    const ItemTexts texts = TextsOf(item);
    for (int k = 0; k < kItemFields; ++k) Field(k)->addItem(texts[static_cast<std::size_t>(k)]);
    sums[0] += item.TotalItems;
    sums[1] += item.ItemAmount;
    sums[2] += item.PocketMoney;
    sums[3] += item.Balance;
  }
  for (int i = 0; i < 4; ++i) {
    SetText(Indexed("txt", 5 + i), QString::number(sums[static_cast<std::size_t>(i)]));
  }
  ShowItem(1);
}

void CardForm::ShowItem(std::int32_t recNo) {
  SetCardRecNo(QString::number(recNo));
  for (int k = 0; k < kItemFields; ++k) {
    Combo* field = Field(k);
    field->setCurrentIndex(recNo - 1);
    field->setEditText(field->itemText(recNo - 1));  // also over what was typed
  }
}

void CardForm::ShowCardHeader(const StudentRec& rec) {
  SetText(Indexed("txt", 0), Trim(rec.StudentName.Text()));
  SetText(Indexed("txt", 1), Trim(rec.ClassName.Text()));
  SetText(Indexed("txt", 2), Trim(rec.TeacherName.Text()));
  ShowPath(Trim(rec.IdCardPath.Text()), kIdCardPath, kIdCard);
  ShowPath(Trim(rec.LogoPath.Text()), kLogoPath, kLogo);
  RememberHead();
}

void CardForm::RememberHead() {
  for (std::size_t i = 0; i < head_.size(); ++i) {
    head_[i] = TextOf(Indexed("txt", static_cast<int>(i)));
  }
}

void CardForm::ShowPath(const QString& path, const QString& textBox, const QString& picture) {
  if (FileMissing(path)) return SetText(textBox, path + kCardNotFound);
  SetText(textBox, path);
  ShowPicture(path, picture);
}

void CardForm::ShowPicture(const QString& path, const QString& picture) {
  const QPixmap loaded = LoadPicture(path);
  if (!loaded.isNull()) Named<PictureBox>(picture)->SetPicture(loaded);
}

void CardForm::NewCardItem() {
  const QDate today = TheEnvironment().today();
  ItemTexts texts;
  texts.fill(QStringLiteral("?..."));
  texts[0] = QString::number(today.day());
  texts[1] = QString::number(today.month());
  texts[2] = QString::number(today.year());
  texts[kItemField] = QStringLiteral("Item Name...");
  ShowNewItem(texts);
}

QString CardForm::CardRecNo() const {
  return Named<Label>(Indexed("lbl", kSaveButton))->property("Tag").toString();
}

void CardForm::SetCardRecNo(const QString& text) {
  Named<Label>(Indexed("lbl", kSaveButton))->setProperty("Tag", text);
}

CardForm::Target CardForm::TakeTarget() {
  const bool isNew = Trim(CardRecNo()) == kNew;
  if (isNew) SetCardRecNo(QString::number(Field(0)->count() + 1));
  return {.recNo = RoundToLong(Val(CardRecNo())), .isNew = isNew};
}

/// A new item that could not be stored is still a new one at the next try.
void CardForm::Failed(const Target& target) {
  if (target.isNew) SetCardRecNo(kNew);
}

bool CardForm::ItemIsNumeric() {
  for (int k = 0; k < kItemFields; ++k) {
    SetBackColor(Field(k), kCardWhite);
    if (k == kItemField || IsNumeric(Field(k)->currentText())) continue;
    SetBackColor(Field(k), kCardRed);
    Field(k)->setFocus();
    MsgBox(QStringLiteral("Enter Numeric"));
    return false;
  }
  return true;
}

void CardForm::NewClicked() {
  NewCardItem();
  Say({});
}

void CardForm::SaveClicked() {
  if (ReadsOnlyNow(kSave)) return;
  if (!ItemIsNumeric() || !isRead_ || !LossesAreAgreedTo()) return;
  Target target = TakeTarget();
  if (SaveCard(target.recNo, target.isNew) != 0) {
    Failed(target);
    return Refused(kSave);
  }
  MsgBox(QStringLiteral("Saved Successfully"));
  if (CardForm* card = LoadAgain()) card->ShowItem(target.recNo);
}

void CardForm::RemoveClicked() {
  if (ReadsOnlyNow(kRemove)) return;
  const Target target = TakeTarget();
  if (target.recNo == 1) {
    Failed(target);
    return MsgBox(QStringLiteral("First Record Cannot be Removed"));
  }
  const ItemTexts listed = ListedTexts(target.recNo);
  if (RemoveCardItem(target.recNo, target.isNew ? nullptr : &listed, &failure_) != 0) {
    Failed(target);
    return Refused(kRemove);
  }
  MsgBox(QStringLiteral("Removed Successfully"));
  LoadAgain();
}

}  // namespace bramlee
