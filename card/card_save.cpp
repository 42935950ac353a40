// How the biodata card is stored.
#include "card/card_file.h"
#include "card/card_form.h"
#include "files/drives.h"
#include "files/trap.h"
#include "ui/message_box.h"

namespace bramlee {
namespace {

/// A text that is about to be stored.
struct Stored {
  const char* name;  ///< as its label reads
  QString text;
  int room;  ///< bytes in the record
};

constexpr int kTextRoom = 100;
constexpr int kPathRoom = 50;

/// The characters of the text that the file cannot hold, each once.
QString Lacking(const QString& text) {
  QString lacking;
  for (const char32_t character : text.toStdU32String()) {
    const QString one = QString::fromUcs4(&character, 1);
    if (!FitsCp1252(one) && !lacking.contains(one)) lacking += one;
  }
  return lacking;
}

/// What would be lost of the text, in the user's words. Empty for nothing.
QString LossOf(const Stored& stored) {
  QString loss;
  const QString lacking = Lacking(stored.text);
  if (!lacking.isEmpty()) {
    loss += QStringLiteral("\n%1: the card can keep no %2, it would become \"?\".")
                .arg(QString::fromLatin1(stored.name), lacking);
  }
  if (ToCp1252(stored.text).size() > stored.room) {
    loss += QStringLiteral("\n%1: longer than %2 characters, its end would be cut off.")
                .arg(QString::fromLatin1(stored.name))
                .arg(stored.room);
  }
  return loss;
}

/// Record 1, with a new item counted in. Its number is then in `recNo`.
StudentRec CountIn(const FileSlot& slot, FileSave& save, std::int32_t& recNo, bool isNew) {
  RecordFile file(slot, save);
  StudentRec rec = DecodeStudent(file.Get(1));
  if (isNew) {
    recNo = CountedItems(rec, file) + 1;
    rec.RecordCount = recNo;
    file.Put(1, EncodeStudent(rec));
  } else if (file.Records() == 0) {
    throw CardGone(QStringLiteral("the card is gone"));
  } else if (recNo > file.Records()) {
    throw ItemChanged(QStringLiteral("the item is gone"));
  }
  return rec;
}

}  // namespace

bool CardForm::LossesAreAgreedTo() const {
  const Stored all[] = {
      {"Name",          Words(0),                      kTextRoom},
      {"Class",         Words(1),                      kTextRoom},
      {"Class Teacher", Words(2),                      kTextRoom},
      {"ID-Card",       Words(3),                      kPathRoom},
      {"School Logo",   Words(4),                      kPathRoom},
      {"Item Name",     Trim(Field(3)->currentText()), kTextRoom},
  };
  QString losses;
  for (const Stored& stored : all) {
    // A path that names no file is not stored.
    if (stored.room != kPathRoom || !FileMissing(stored.text)) losses += LossOf(stored);
  }
  if (losses.isEmpty()) return true;
  return AskBox(QStringLiteral("Not all of this can be kept as you typed it:\n") + losses,
                QStringLiteral("Save all the same"), QStringLiteral("Back to the card"));
}

std::int16_t CardForm::SaveCard(std::int32_t& recNo, bool isNew) {
  std::int16_t status = 1;
  const auto store = [&](ErrInfo&) {
    const FileSlot slot = TakeSlot(kCardSlot);
    FileSave save(slot.SlotPath);
    StudentRec rec = CountIn(slot, save, recNo, isNew);
    RecordFile file(slot, save);
    if (!isNew && recNo <= Field(0)->count()) CheckItem(file, recNo, ListedTexts(recNo));
    if (SaveCardHeader(recNo, isNew, rec) != 0) return;
    file.Put(1, EncodeStudent(rec));
    if (recNo != 1) {
      if (!isNew) rec = DecodeStudent(file.Get(recNo));  // with the head that it has there
      ReadItemFields(rec);
      file.Put(recNo, EncodeStudent(rec));
    }
    save.Commit();
    status = 0;
  };
  Trap(QStringLiteral("601:23"), store, KeptIn(&failure_));
  return status;
}

std::int16_t CardForm::SaveCardHeader(std::int32_t recNo, bool /*isNew*/, StudentRec& rec) {
  const auto take = [&](ErrInfo&) {
    rec.StudentName.Set(Words(0));
    rec.ClassName.Set(Words(1));
    rec.TeacherName.Set(Words(2));
    SetBackColor(Named<QLineEdit>(Indexed("txt", 3)), kCardWhite);
    SetBackColor(Named<QLineEdit>(Indexed("txt", 4)), kCardWhite);
    TakePath(Indexed("txt", 3), rec.IdCardPath);
    TakePath(Indexed("txt", 4), rec.LogoPath);
    // Also a new item's, when no record was in use: it is stored in this one.
    if (recNo == 1) ReadItemFields(rec);
  };
  return Trap(QStringLiteral("601:23"), take, KeptIn(&failure_)) ? 0 : 1;
}

void CardForm::TakePath(const QString& textBox, FixedText<50>& field) const {
  const QString path = Trim(TextOf(textBox));
  if (!FileMissing(path)) return field.Set(path);
  SetText(textBox, path + kCardNotFound);
  SetBackColor(Named<QLineEdit>(textBox), kCardRed);
}

void CardForm::ReadItemFields(StudentRec& rec) const {
  rec.EnterDay = RoundToInteger(Number(0));
  rec.EnterMonth = RoundToInteger(Number(1));
  rec.EnterYear = RoundToInteger(Number(2));
  rec.ItemName.Set(Field(3)->currentText());
  rec.PricePerItem = Number(4);
  rec.TotalItems = RoundToLong(Number(5));
  rec.ItemAmount = RoundToLong(Number(6));
  rec.PocketMoney = RoundToLong(Number(7));
  rec.Balance = RoundToLong(Number(8));
}

}  // namespace bramlee
