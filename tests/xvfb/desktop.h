// A desktop for tests: a display of its own with a window manager, and programs run on it.
#pragma once

#include <QImage>
#include <QProcess>
#include <QRect>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>

struct xcb_connection_t;

namespace bramlee {

/// An unseen X display on a free number, with openbox on it. Ends with its process.
/// Whatever cannot be started throws std::runtime_error.
class Desktop {
 public:
  explicit Desktop(QSize size = {1366, 768}) : Desktop(size, {}) {}
  /// One that spans these monitors; the first one is the primary.
  explicit Desktop(const QList<QRect>& monitors);
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// As in the environment variable: ":5".
  const QString& Name() const { return name_; }

  /// Runs xdotool with these arguments and waits for it.
  void Xdotool(const QStringList& arguments) const;
  /// Tells programs to come that this part of the screen is free, as a panel's place is not.
  void SetFreePart(const QRect& part) const;
  /// Clicks with the left button, and leaves the pointer there.
  void Click(QPoint point) const;
  void Key(const QString& key) const;

  /// What the screen shows.
  QImage Screenshot() const;

  /// Lays a black window that no window manager knows over a part of the screen, and takes it
  /// away again.
  void Cover(const QRect& part);
  void Uncover();

  /// Where the top left of that window lies on the screen.
  QPoint PlaceOf(std::uint32_t window) const;

  /// Asks the window whether its program is alive, as window managers do, and waits for the
  /// answer. False when none comes within `ms`.
  bool AnswersPing(std::uint32_t window, int ms) const;

  /// The window of that title that the window manager knows, 0 for none.
  std::uint32_t WindowTitled(const QString& title) const;
  /// Whether keys go to that window.
  bool HasKeys(std::uint32_t window) const;
  /// Asks the window manager to close it, as its close button does.
  void AskToClose(std::uint32_t window) const;
  /// Where it stands with its borders and title bar.
  QRect OuterPlace(std::uint32_t window) const;

  // --- sizes and states, asked for and done by the window manager
  void Resize(std::uint32_t window, QSize size) const;

 private:
  Desktop(QSize size, const QList<QRect>& monitors);
  void Run(const QString& program, const QStringList& arguments) const;
  void SetMonitors(const QList<QRect>& monitors) const;
  std::uint32_t Atom(const char* name) const;
  bool HasWindowManager() const;

  QProcess server_;
  QProcess windowManager_;
  QString name_;
  xcb_connection_t* connection_ = nullptr;
  std::uint32_t root_ = 0;
  std::uint32_t cover_ = 0;
};

/// Waits until the condition holds; false when it never does.
bool Eventually(const std::function<bool()>& condition);

/// A program that runs on a desktop and prints line by line what happens to it.
class Program {
 public:
  /// Starts it, with a configuration of its own in which nothing is chosen. `settings` are further
  /// environment variables, as "QT_SCALE_FACTOR=2".
  Program(const Desktop& desktop, const QString& path, const QStringList& arguments,
          const QStringList& settings = {});
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Waits until it has printed a line that begins so, after the one waited for last, and returns
  /// the line. Throws std::runtime_error, with all lines, when the program ends before or hangs.
  QString WaitFor(const QString& beginning);

  /// Whether it has printed a line that begins so by now.
  bool HasPrinted(const QString& beginning);

  /// All lines that it has printed by now.
  QStringList Lines();

  /// Where the first line that begins so stands among all, -1 for none.
  qsizetype PlaceOf(const QString& beginning, qsizetype from = 0);

  /// Sends it a line.
  void Tell(const QString& line);

  /// Waits until it has ended of itself; its exit status, or -1 when it crashed. Throws
  /// std::runtime_error when it hangs.
  int WaitForEnd();

  qint64 ProcessId() const { return process_.processId(); }

 private:
  void TakeLines(int waitMs);

  QTemporaryDir configuration_;
  QProcess process_;
  QString path_;
  QStringList lines_;
  qsizetype awaited_ = 0;  ///< the first line that was not yet looked at by WaitFor
};

}  // namespace bramlee
