#include "tests/xvfb/desktop.h"

#include <sys/prctl.h>
#include <xcb/xcb.h>

#include <QElapsedTimer>
#include <QProcessEnvironment>
#include <QThread>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <numeric>
#include <stdexcept>

namespace bramlee {
namespace {

/// How long something that works may take on the busiest machine.
constexpr int kHangsMs = 120'000;
constexpr int kLookMs = 10;

[[noreturn]] void Fail(const QString& what) {
  throw std::runtime_error(what.toStdString());
}

template <class Reply>
using Freed = std::unique_ptr<Reply, decltype([](Reply* reply) { std::free(reply); })>;

/// Starts a process that ends when the test does, however that ends.
void Start(QProcess& process, const QString& program, const QStringList& arguments) {
  process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
  process.start(program, arguments);
  if (!process.waitForStarted()) Fail(program + QStringLiteral(": ") + process.errorString());
}

void End(QProcess& process) {
  process.terminate();
  if (!process.waitForFinished(kHangsMs)) process.kill();
  process.waitForFinished();
}

void SetDisplay(QProcess& process, const QString& display, const QStringList& settings = {}) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("DISPLAY"), display);
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  for (const QString& setting : settings) {
    environment.insert(setting.section(u'=', 0, 0), setting.section(u'=', 1));
  }
  process.setProcessEnvironment(environment);
}

/// The lines, a line that comes many times in a row told once.
QString Told(const QStringList& lines) {
  QStringList told;
  for (qsizetype i = 0; i < lines.size();) {
    const qsizetype from = i;
    while (i < lines.size() && lines[i] == lines[from]) ++i;
    const qsizetype times = i - from;
    told.append(times == 1 ? lines[from]
                           : QStringLiteral("%1 (%2 times)").arg(lines[from]).arg(times));
  }
  return told.join(u'\n');
}

}  // namespace

Desktop::Desktop(const QList<QRect>& monitors)
    : Desktop(std::accumulate(monitors.begin(), monitors.end(), QRect(), std::bit_or<>()).size(),
              monitors) {}

Desktop::Desktop(QSize size, const QList<QRect>& monitors) {
  server_.setProcessChannelMode(QProcess::SeparateChannels);
  server_.setStandardErrorFile(QProcess::nullDevice());
  Start(server_, QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
         QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()),
         QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
  while (!server_.canReadLine()) {
    if (!server_.waitForReadyRead(kHangsMs)) Fail(QStringLiteral("Xvfb does not start"));
  }
  name_ = u':' + QString::fromLatin1(server_.readLine()).trimmed();

  connection_ = xcb_connect(qPrintable(name_), nullptr);
  if (xcb_connection_has_error(connection_) != 0) Fail(QStringLiteral("no display ") + name_);
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;

  SetMonitors(monitors);
  SetDisplay(windowManager_, name_);
  windowManager_.setStandardErrorFile(QProcess::nullDevice());
  Start(windowManager_, QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
  if (!Eventually([this] { return HasWindowManager(); })) {
    Fail(QStringLiteral("openbox does not start"));
  }
}

Desktop::~Desktop() {
  xcb_disconnect(connection_);
  End(windowManager_);
  End(server_);
}

std::uint32_t Desktop::Atom(const char* name) const {
  const auto cookie =
      xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(strlen(name)), name);
  const Freed<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookie, nullptr));
  return reply->atom;
}

/// openbox sets the list of windows last of all, when it is ready to take care of any.
bool Desktop::HasWindowManager() const {
  const auto cookie =
      xcb_get_property(connection_, 0, root_, Atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 0, 1);
  const Freed<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, cookie, nullptr));
  return reply != nullptr && reply->type != XCB_ATOM_NONE;
}

/// Parts the one screen that Xvfb has. Its only output goes to the primary.
void Desktop::SetMonitors(const QList<QRect>& monitors) const {
  for (qsizetype i = 0; i < monitors.size(); ++i) {
    const QRect& place = monitors[i];
    Run(QStringLiteral("xrandr"),
        {QStringLiteral("--setmonitor"),
         (i == 0 ? QStringLiteral("*m") : QStringLiteral("m")) + QString::number(i),
         QStringLiteral("%1/300x%2/200+%3+%4")
             .arg(place.width())
             .arg(place.height())
             .arg(place.x())
             .arg(place.y()),
         i == 0 ? QStringLiteral("screen") : QStringLiteral("none")});
  }
}

void Desktop::Run(const QString& program, const QStringList& arguments) const {
  QProcess process;
  SetDisplay(process, name_);
  Start(process, program, arguments);
  if (!process.waitForFinished(kHangsMs) || process.exitCode() != 0) {
    Fail(program + u' ' + arguments.join(u' '));
  }
}

void Desktop::Xdotool(const QStringList& arguments) const {
  Run(QStringLiteral("xdotool"), arguments);
}

void Desktop::SetFreePart(const QRect& part) const {
  const QString place = QStringLiteral("%1, %2, %3, %4")
                            .arg(part.x())
                            .arg(part.y())
                            .arg(part.width())
                            .arg(part.height());
  Run(QStringLiteral("xprop"),
      {QStringLiteral("-root"), QStringLiteral("-f"), QStringLiteral("_NET_WORKAREA"),
       QStringLiteral("32c"), QStringLiteral("-set"), QStringLiteral("_NET_WORKAREA"), place});
}

void Desktop::Click(QPoint point) const {
  Xdotool({QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y()),
           QStringLiteral("click"), QStringLiteral("1")});
}

void Desktop::Key(const QString& key) const {
  Xdotool({QStringLiteral("key"), key});
}

QImage Desktop::Screenshot() const {
  const Freed<xcb_get_geometry_reply_t> geometry(
      xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, root_), nullptr));
  const auto cookie = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_, 0, 0,
                                    geometry->width, geometry->height, ~0U);
  const Freed<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection_, cookie, nullptr));
  if (reply == nullptr) Fail(QStringLiteral("no picture of the screen"));
  return QImage(xcb_get_image_data(reply.get()), geometry->width, geometry->height,
                QImage::Format_RGB32)
      .copy();
}

void Desktop::Cover(const QRect& part) {
  cover_ = xcb_generate_id(connection_);
  const std::uint32_t values[] = {0, 1};  // black, and out of the window manager's sight
  xcb_create_window(connection_, XCB_COPY_FROM_PARENT, cover_, root_,
                    static_cast<std::int16_t>(part.x()), static_cast<std::int16_t>(part.y()),
                    static_cast<std::uint16_t>(part.width()),
                    static_cast<std::uint16_t>(part.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                    XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
  xcb_map_window(connection_, cover_);
  xcb_flush(connection_);
}

void Desktop::Uncover() {
  xcb_destroy_window(connection_, cover_);
  xcb_flush(connection_);
}

QPoint Desktop::PlaceOf(std::uint32_t window) const {
  const auto cookie = xcb_translate_coordinates(connection_, window, root_, 0, 0);
  const Freed<xcb_translate_coordinates_reply_t> reply(
      xcb_translate_coordinates_reply(connection_, cookie, nullptr));
  return {reply->dst_x, reply->dst_y};
}

std::uint32_t Desktop::WindowTitled(const QString& title) const {
  const auto property = [this](std::uint32_t window, const char* name) {
    const auto cookie =
        xcb_get_property(connection_, 0, window, Atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 4096);
    const Freed<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_, cookie, nullptr));
    if (reply == nullptr) return QByteArray();
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get()));
  };
  const QByteArray windows = property(root_, "_NET_CLIENT_LIST");
  for (qsizetype i = 0; i + 4 <= windows.size(); i += 4) {
    std::uint32_t window = 0;
    std::memcpy(&window, windows.constData() + i, sizeof window);
    if (property(window, "_NET_WM_NAME") == title.toUtf8()) return window;
  }
  return 0;
}

bool Desktop::HasKeys(std::uint32_t window) const {
  const Freed<xcb_get_input_focus_reply_t> focus(
      xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  return focus != nullptr && focus->focus == window;
}

void Desktop::AskToClose(std::uint32_t window) const {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = Atom("_NET_CLOSE_WINDOW");
  event.data.data32[1] = 2;  // asked for by the user
  xcb_send_event(connection_, 0, root_,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&event));
  xcb_flush(connection_);
}

QRect Desktop::OuterPlace(std::uint32_t window) const {
  std::uint32_t outer = window;
  while (true) {
    const Freed<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, outer), nullptr));
    if (tree == nullptr) return {};
    if (tree->parent == root_) break;
    outer = tree->parent;
  }
  const Freed<xcb_get_geometry_reply_t> place(
      xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, outer), nullptr));
  if (place == nullptr) return {};
  const int borders = 2 * place->border_width;
  return {place->x, place->y, place->width + borders, place->height + borders};
}

bool Desktop::AnswersPing(std::uint32_t window, int ms) const {
  const std::uint32_t ping = Atom("_NET_WM_PING");
  const std::uint32_t listen = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &listen);
  static std::uint32_t stamp = 1000;
  ++stamp;
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = Atom("WM_PROTOCOLS");
  event.data.data32[0] = ping;
  event.data.data32[1] = stamp;
  event.data.data32[2] = window;
  xcb_send_event(connection_, 0, window, XCB_EVENT_MASK_NO_EVENT,
                 reinterpret_cast<const char*>(&event));
  xcb_flush(connection_);
  QElapsedTimer waited;
  waited.start();
  while (waited.elapsed() < ms) {
    const Freed<xcb_generic_event_t> got(xcb_poll_for_event(connection_));
    if (got == nullptr) {
      QThread::msleep(1);
      continue;
    }
    if ((got->response_type & 0x7F) != XCB_CLIENT_MESSAGE) continue;
    const auto* answer = reinterpret_cast<const xcb_client_message_event_t*>(got.get());
    if (answer->data.data32[0] == ping && answer->data.data32[1] == stamp) return true;
  }
  return false;
}

void Desktop::Resize(std::uint32_t window, QSize size) const {
  const QString name = QString::number(window);
  Xdotool({QStringLiteral("windowsize"), name, QString::number(size.width()),
           QString::number(size.height())});
}

bool Eventually(const std::function<bool()>& condition) {
  QElapsedTimer waited;
  waited.start();
  while (!condition()) {
    if (waited.elapsed() > kHangsMs) return false;
    QThread::msleep(kLookMs);
  }
  return true;
}

Program::Program(const Desktop& desktop, const QString& path, const QStringList& arguments,
                 const QStringList& settings)
    : path_(path) {
  SetDisplay(process_, desktop.Name(),
             QStringList{QStringLiteral("XDG_CONFIG_HOME=") + configuration_.path()} + settings);
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  Start(process_, path, arguments);
}

Program::~Program() {
  process_.kill();
  process_.waitForFinished();
}

int Program::WaitForEnd() {
  if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(kHangsMs)) {
    Fail(path_ + QStringLiteral(" does not end"));
  }
  return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

void Program::TakeLines(int waitMs) {
  if (!process_.canReadLine()) process_.waitForReadyRead(waitMs);
  while (process_.canReadLine()) lines_.append(QString::fromUtf8(process_.readLine()).trimmed());
}

QString Program::WaitFor(const QString& beginning) {
  QElapsedTimer waited;
  waited.start();
  while (true) {
    while (awaited_ < lines_.size()) {
      const QString& line = lines_[awaited_++];
      if (line.startsWith(beginning)) return line;
    }
    if (process_.state() == QProcess::NotRunning || waited.elapsed() > kHangsMs) {
      Fail(QStringLiteral("never told: %1; but:\n%2").arg(beginning, Told(lines_)));
    }
    TakeLines(kLookMs);
  }
}

bool Program::HasPrinted(const QString& beginning) {
  return PlaceOf(beginning) >= 0;
}

QStringList Program::Lines() {
  TakeLines(0);
  return lines_;
}

qsizetype Program::PlaceOf(const QString& beginning, qsizetype from) {
  TakeLines(0);
  for (qsizetype i = from; i < lines_.size(); ++i) {
    if (lines_[i].startsWith(beginning)) return i;
  }
  return -1;
}

void Program::Tell(const QString& line) {
  process_.write(line.toUtf8() + '\n');
  process_.waitForBytesWritten();
}

}  // namespace bramlee
