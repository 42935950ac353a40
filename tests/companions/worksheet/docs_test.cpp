// docs/forms.md names the dialog's controls, and only those.
#include <QRegularExpression>
#include <QSet>

#include "tests/companions/worksheet/opened_worksheet.h"

namespace bramlee {
namespace {

class WorksheetDocs : public OpenedWorksheet {
 protected:
  /// The names in the dialog's table; tiles as one.
  static QStringList Named() {
    static const QRegularExpression kName(Q(R"(`(worksheet_\w+)(\(n\))?`)"));
    const QString page =
        QString::fromUtf8(BytesOf(QStringLiteral(BRAMLEE_SOURCE_DIR "/docs/forms.md")));
    const QString section = page.section(Q("\n## `worksheet`"), 1, 1).section(Q("\n## "), 0, 0);
    QSet<QString> names;
    for (auto each = kName.globalMatch(section); each.hasNext();) {
      names.insert(each.next().captured(1));
    }
    return Sorted(names);
  }
  QStringList OnDialog() const {
    QSet<QString> names;
    for (const QObject* each : dialog->findChildren<QObject*>()) {
      const QString name = each->objectName().section(u'(', 0, 0);
      if (name.startsWith(Q("worksheet_"))) names.insert(name);
    }
    return Sorted(names);
  }

 private:
  static QStringList Sorted(const QSet<QString>& names) {
    QStringList list = names.values();
    list.sort();
    return list;
  }
};

TEST_F(WorksheetDocs, EachControlIsInTheTableOfTheDialog) {
  OpenOn(kMathsForm);
  EXPECT_EQ(OnDialog().join(u' ').toStdString(), Named().join(u' ').toStdString());
}

}  // namespace
}  // namespace bramlee
