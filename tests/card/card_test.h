// A biodata card on drives of a test's own, and its file byte by byte.
#pragma once

#include <QImage>
#include <QtEndian>

#include "card/card.h"
#include "card/card_form.h"
#include "home/home.h"
#include "tests/files/temp_drives.h"
#include "ui/forms.h"

namespace bramlee {

/// A record of the card's file, written without the program's own codec.
struct PlainRecord {
  int serial = 1;
  QByteArray name = "Anna";
  QByteArray className = "KG 2";
  QByteArray idCard = "C:\\id.png";
  QByteArray logo = "C:\\logo.png";
  QByteArray teacher = "Mrs Rao";
  QByteArray item = "Pen";
  int money = 100;
  int amount = 20;
  int balance = 80;
  int day = 9;
  int month = 3;
  int year = 2025;
  int count = 1;
  double price = 10;
  int items = 2;
  QByteArray reserved = QByteArray(62, '\0');

  QByteArray Bytes() const {
    QByteArray bytes;
    Add<qint32>(bytes, serial);
    bytes += name.leftJustified(100, ' ', true) + className.leftJustified(100, ' ', true);
    bytes += idCard.leftJustified(50, ' ', true) + logo.leftJustified(50, ' ', true);
    bytes += teacher.leftJustified(100, ' ', true) + item.leftJustified(100, ' ', true);
    for (const int number : {money, amount, balance}) Add<qint32>(bytes, number);
    for (const int number : {day, month, year}) Add<qint16>(bytes, number);
    Add<qint32>(bytes, count);
    char coded[8];
    qToLittleEndian(price, coded);
    bytes += QByteArray(coded, 8);
    Add<qint32>(bytes, items);
    return bytes + reserved.leftJustified(62, '\0', true);
  }

 private:
  template <class Whole>
  static void Add(QByteArray& bytes, int number) {
    char coded[sizeof(Whole)];
    qToLittleEndian(static_cast<Whole>(number), coded);
    bytes += QByteArray(coded, sizeof(Whole));
  }
};

class CardTest : public TempDrives {
 protected:
  CardTest() {
    RegisterHome({});
    RegisterCard();
    MakeDataFolder();
    environment.today = [] { return QDate(2025, 3, 9); };
    QImage red(20, 10, QImage::Format_RGB32);
    red.fill(Qt::red);
    red.save(On("c/id.png"));
    QImage blue(10, 20, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    blue.save(On("c/logo.png"));
  }

  QString Place() const { return On("c/bramlee/dba/brmstu1.dat"); }
  QByteArray File() const { return BytesOf(Place()); }
  void Put(const QByteArray& bytes) const { WriteBytes(Place(), bytes); }
  /// Items named "Item 1" to "Item N", priced 10, 20, ...; the head stands in the first.
  static QByteArray Items(int n) {
    QByteArray bytes;
    for (int i = 1; i <= n; ++i) {
      PlainRecord record;
      record.item = "Item " + QByteArray::number(i);
      record.price = 10 * i;
      record.count = i == 1 ? n : -i;  // a stale count, which nothing reads
      record.serial = 100 + i;
      record.name = i == 1 ? "Anna" : "Old name";
      record.reserved = QByteArray(62, static_cast<char>('a' + i));
      bytes += record.Bytes();
    }
    return bytes;
  }

  static CardForm* Open() {
    ShowForm(QStringLiteral("fbrminf1"));
    return Card();
  }
  static CardForm* Card() {
    return qobject_cast<CardForm*>(LoadedForm(QStringLiteral("fbrminf1")));
  }
  static Combo* Field(int k) { return Card()->Named<Combo>(Indexed("cmb", k)); }
  static TextBox* Box(int i) { return Card()->Named<TextBox>(Indexed("txt", i)); }
  static Label* Sign(int i) { return Card()->Named<Label>(Indexed("lbl", i)); }
  /// What the line below the buttons says.
  static QString Said() { return Card()->Named<Label>(QStringLiteral("lblsaid"))->text(); }
  static void Click(int sign) { Card()->lbl_Click(sign); }
  static void New() { Click(12); }
  static void Save() { Click(13); }
  static void Remove() { Click(14); }
  static void Pick(int k, int index) {
    Field(k)->setCurrentIndex(index);
    Card()->cmb_Click(k);
  }
  static void Type(int k, const char* text) { Field(k)->setEditText(QString::fromUtf8(text)); }
  /// Types numbers into all fields of a new item.
  static void TypeItem(const char* name) {
    Type(3, name);
    for (const int k : {4, 5, 6, 7, 8}) Type(k, "1");
  }
  static QStringList Row() {
    QStringList row;
    for (int k = 0; k < 9; ++k) row.append(Field(k)->currentText());
    return row;
  }
  static QStringList Sums() {
    QStringList sums;
    for (int i = 5; i < 9; ++i) sums.append(Box(i)->text());
    return sums;
  }
  static QStringList Texts(std::initializer_list<const char*> texts) {
    QStringList list;
    for (const char* text : texts) list.append(QString::fromUtf8(text));
    return list;
  }
  static QStringList List(int k) {
    QStringList list;
    for (int i = 0; i < Field(k)->count(); ++i) list.append(Field(k)->itemText(i));
    return list;
  }
};

/// The form itself; its tests stand by subject in several files.
class BiodataCard : public CardTest {};

}  // namespace bramlee
