// What the traps log, while a test listens.
#pragma once

#include <QLoggingCategory>
#include <QStringList>
#include <initializer_list>

namespace bramlee {

/// Collects the lines of "bramlee.trap" while it lives; one at a time. Other messages go to the
/// terminal as usual.
class TrapLog {
 public:
  TrapLog() {
    Lines().clear();
    QLoggingCategory::setFilterRules(QStringLiteral("bramlee.trap.debug=true"));
    Before() = qInstallMessageHandler(&Take);
  }
  ~TrapLog() {
    qInstallMessageHandler(Before());
    QLoggingCategory::setFilterRules({});
  }
  TrapLog(const TrapLog&) = delete;
  TrapLog& operator=(const TrapLog&) = delete;

  /// "[601:03] the disk takes no more"
  static QStringList& Lines() {
    static QStringList lines;
    return lines;
  }
  /// The lines' tags, in order.
  static QStringList Tags() {
    QStringList tags;
    for (const QString& line : Lines()) tags.append(line.section(u']', 0, 0).mid(1));
    return tags;
  }

 private:
  static QtMessageHandler& Before() {
    static QtMessageHandler before = nullptr;
    return before;
  }
  static void Take(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (qstrcmp(context.category, "bramlee.trap") == 0) {
      Lines().append(text);
    } else if (Before() != nullptr) {
      Before()(type, context, text);
    }
  }
};

/// A list of tags to compare with.
inline QStringList Tags(std::initializer_list<const char*> tags) {
  QStringList list;
  for (const char* tag : tags) list.append(QString::fromLatin1(tag));
  return list;
}

}  // namespace bramlee
