// Home with boards that are none, as its tests share it.
#pragma once

#include <functional>
#include <utility>

#include "home/home_form.h"
#include "tests/home/home_forms.h"

namespace bramlee {

inline const char* const kBoards[] = {"fbrmengc02", "fbrmengs01", "fbrmhinv01", "fbrmhinc01",
                                      "fbrmtelv01", "fbrmtelc01", "fbrmmat01"};

/// A board as home knows it: it takes the media's drive when it is loaded.
class DriveBoard : public Form {
 public:
  explicit DriveBoard(const QString& name) : Form(name) {
    AddHiddenText(QStringLiteral("txtdrv"), QStringLiteral("?:"));
  }
  void Form_Load() override { SetText(QStringLiteral("txtdrv"), *TheEnvironment().mediaDrive()); }
};

/// A form whose unload the test watches.
class WatchedForm : public Form {
 public:
  WatchedForm(const QString& name, std::function<void()> atUnload)
      : Form(name), atUnload_(std::move(atUnload)) {}
  void Form_Unload() override { atUnload_(); }

 private:
  std::function<void()> atUnload_;
};

class Home : public HomeForms {
 protected:
  Home() {
    for (const char* board : kBoards) {
      const QString name = QString::fromLatin1(board);
      RegisterForm(name, [name] { return new DriveBoard(name); });
    }
  }
  static HomeForm* TheForm() { return dynamic_cast<HomeForm*>(Shown("fbrmhom1")); }
  static PictureBox* Tile(const Form* home, int i) {
    return home->Named<PictureBox>(Indexed("pic", i));
  }
  static Label* Subject(const Form* home, int i) { return home->Named<Label>(Indexed("lbl1", i)); }
  static QString DriveOf(const char* form) {
    return Loaded(form)->TextOf(QStringLiteral("txtdrv"));
  }
  /// The captions of the marked items of the drive menu.
  static QStringList MarkedDrives(const Form* home) {
    QStringList marked;
    for (int i = 1; i <= 26; ++i) {
      const auto* item = home->Named<QAction>(Indexed("mnudrv", i));
      if (item->isChecked()) marked.append(CaptionOf(item));
    }
    return marked;
  }
};

}  // namespace bramlee
