// docs/forms.md against the forms: whoever looks a name up there finds it, and only names that
// exist.
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include "app/subjects.h"
#include "board/board.h"
#include "board/companions.h"
#include "card/card.h"
#include "companions/book/book.h"
#include "companions/export/export.h"
#include "companions/fit/fit.h"
#include "companions/numbers/numbers.h"
#include "companions/trace/trace.h"
#include "companions/voice/voice.h"
#include "companions/watch/watch.h"
#include "companions/words/words.h"
#include "companions/worksheet/worksheet.h"
#include "home/home.h"
#include "maths/maths.h"
#include "media/media.h"
#include "tests/files/temp_drives.h"
#include "ui/form.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

QString TextOfSource(const char* path) {
  return QString::fromUtf8(BytesOf(QStringLiteral(BRAMLEE_SOURCE_DIR "/") + QLatin1String(path)));
}

/// The names between backticks; `a(1..3)` is a(1), a(2) and a(3).
QSet<QString> NamesIn(const QString& text) {
  static const QRegularExpression kName(
      QStringLiteral(R"(`([A-Za-z]\w*)(?:\((\d+)(?:\.\.(\d+))?\))?`)"));
  QSet<QString> names;
  for (auto each = kName.globalMatch(text); each.hasNext();) {
    const QRegularExpressionMatch name = each.next();
    if (name.capturedLength(2) == 0) names.insert(name.captured(1));
    const QString last = name.captured(name.capturedLength(3) > 0 ? 3 : 2);
    for (int i = name.captured(2).toInt(); i <= last.toInt() && !last.isEmpty(); ++i) {
      names.insert(QStringLiteral("%1(%2)").arg(name.captured(1)).arg(i));
    }
  }
  return names;
}

/// The names that tables say a form has: those in the first cell of a row, and in the second, the
/// item, of a menu.
QSet<QString> NamesInTables(const QString& text) {
  QSet<QString> names;
  bool menus = false;
  bool forms = false;
  for (const QString& line : text.split(u'\n')) {
    if (!line.startsWith(u'|')) continue;
    const QStringList cells = line.split(u'|');
    if (line.startsWith(QStringLiteral("| menu"))) menus = true, forms = false;
    if (line.startsWith(QStringLiteral("| control"))) menus = forms = false;
    if (line.startsWith(QStringLiteral("| board"))) forms = true;
    if (forms) continue;
    names.unite(NamesIn(cells.at(1)));
    if (menus) names.unite(NamesIn(cells.at(2)));
  }
  return names;
}

/// The names of all that stands on a form, and of its menu items, without those that Qt gives.
QSet<QString> NamesOn(const Form& form) {
  static const QRegularExpression kQtsOwn(QStringLiteral("^(qt_|_layout$|$)"));
  QSet<QString> names;
  for (const QObject* each : form.findChildren<QObject*>()) {
    if (!kQtsOwn.match(each->objectName()).hasMatch()) names.insert(each->objectName());
  }
  return names;
}

std::string Sorted(const QSet<QString>& names) {
  QStringList list = names.values();
  list.sort();
  return list.join(u' ').toStdString();
}

class FormsPage : public TempDrives {
 protected:
  void SetUp() override {
    RegisterHome(HomeSubjects());
    RegisterCard();
    RegisterMedia();
    RegisterBoards();
    RegisterMaths();
    static const bool added = [] {
      for (const Companion each : {AddWatching, AddTracing, AddNumbers, AddFitting, AddBookSwitch,
                                   AddWords, AddWorksheets, AddExport, AddOwnVoice}) {
        AddCompanion(each);
      }
      return true;
    }();
    ASSERT_TRUE(added);
    sections_ = TextOfSource("docs/forms.md").split(QStringLiteral("\n## "));
  }
  void TearDown() override {
    UnloadAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// The ids in the list of all forms.
  QStringList Ids() const {
    static const QRegularExpression kRow(QStringLiteral(R"(\n\| `(\w+)` \|)"));
    QStringList ids;
    for (auto each = kRow.globalMatch(sections_.front()); each.hasNext();) {
      ids.append(each.next().captured(1));
    }
    return ids;
  }

  /// The section about that form: its own, or the boards' or the charts'.
  QString SectionOf(const QString& id) const {
    for (const QString& section : sections_) {
      if (section.startsWith(QStringLiteral("`%1`").arg(id))) return section;
    }
    const bool chart = id.endsWith(QStringLiteral("00"));
    const QString title = chart ? QStringLiteral("The charts") : QStringLiteral("The boards");
    for (const QString& section : sections_) {
      if (section.startsWith(title)) return chart ? section : BoardPart(section, id);
    }
    return {};
  }

 private:
  /// What the section says of all boards and of that one.
  static QString BoardPart(const QString& section, const QString& id) {
    QString part;
    for (const QString& piece : section.split(QStringLiteral("\n### "))) {
      if (part.isEmpty() || piece.startsWith(QStringLiteral("`%1`").arg(id))) part += piece;
    }
    static const QRegularExpression kRow(QStringLiteral(R"(\n\| `(fbrm\w+)` \|[^\n]*)"));
    QString own = part;
    for (auto each = kRow.globalMatch(part); each.hasNext();) {
      const QRegularExpressionMatch row = each.next();
      if (row.captured(1) != id) own.remove(row.captured());
    }
    return own;
  }

  QStringList sections_;
};

TEST_F(FormsPage, ListsEveryForm) {
  static const QRegularExpression kId(QStringLiteral(R"re("(\w+)";)re"));
  QSet<QString> ids;
  for (auto each = kId.globalMatch(TextOfSource("ui/form_ids.h")); each.hasNext();) {
    ids.insert(each.next().captured(1));
  }
  const QStringList listed = Ids();
  EXPECT_EQ(Sorted({listed.begin(), listed.end()}), Sorted(ids));
}

TEST_F(FormsPage, NamesAllThatStandsOnAForm) {
  for (const QString& id : Ids()) {
    const Form* form = LoadForm(id);
    ASSERT_NE(form, nullptr) << id.toStdString();
    EXPECT_EQ(Sorted(NamesOn(*form) - NamesIn(SectionOf(id))), "") << id.toStdString();
  }
}

TEST_F(FormsPage, NamesNothingThatIsNotThere) {
  QMap<QString, QSet<QString>> said;  // by section, as all boards share one
  QMap<QString, QSet<QString>> there;
  for (const QString& id : Ids()) {
    const QString section = SectionOf(id);
    const QString title = section.section(u'\n', 0, 0);
    said[title].unite(NamesInTables(section));
    there[title].unite(NamesOn(*LoadForm(id))).insert(id);
  }
  const QStringList ids = Ids();
  const QSet<QString> forms(ids.begin(), ids.end());
  for (auto each = said.cbegin(); each != said.cend(); ++each) {
    EXPECT_EQ(Sorted(each.value() - there[each.key()] - forms), "") << each.key().toStdString();
  }
}

TEST_F(FormsPage, GivesTheCaptionsOfMenus) {
  for (const QString& id : Ids()) {
    const QString section = SectionOf(id);
    for (const QAction* action : LoadForm(id)->findChildren<QAction*>()) {
      const QString caption = action->text().trimmed();
      if (!caption.startsWith(u'&')) continue;
      EXPECT_TRUE(section.contains(caption)) << id.toStdString() << ": " << caption.toStdString();
    }
  }
}

}  // namespace
}  // namespace bramlee
