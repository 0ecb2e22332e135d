#include "tools/driver.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>
#include <QTimer>
#include <utility>

#include "interface/JeuPoker.h"
#include "interface/bind.h"
#include "interface/table_scale.h"
#include "services/platform.h"
#include "services/web.h"

namespace {
struct Target {
  QString name;
  int index = -1;
  QString prop;
  bool ok = false;
  // Set when the index is written as digits but does not fit a number.
  QString error;
};

// NAME, NAME(i), and with a property NAME.PROP or NAME(i).PROP.
Target ParseTarget(const QString& text, bool withProperty) {
  static const QRegularExpression re(QStringLiteral(R"(^([^\s().]+)(?:\((-?\d+)\))?(?:\.(\w+))?$)"));
  Target t;
  const auto m = re.match(text);
  if (!m.hasMatch()) return t;
  t.name = m.captured(1);
  if (!m.captured(2).isEmpty()) {
    bool fits = false;
    t.index = m.captured(2).toInt(&fits);
    if (!fits) {
      t.error = QStringLiteral("index %1 does not fit a number").arg(m.captured(2));
      return t;
    }
  }
  t.prop = m.captured(3);
  t.ok = withProperty ? !t.prop.isEmpty() : t.prop.isEmpty();
  return t;
}

// "X Y": two whole numbers of up to five digits, the first written into `out`.
bool TwoNumbers(const QString& text, QPoint& out) {
  static const QRegularExpression re(QStringLiteral(R"(^(-?\d{1,5})\s+(-?\d{1,5})$)"));
  const auto m = re.match(text);
  if (m.hasMatch()) out = QPoint(m.captured(1).toInt(), m.captured(2).toInt());
  return m.hasMatch();
}

QString TargetText(const Target& t) { return t.index < 0 ? t.name : QStringLiteral("%1(%2)").arg(t.name).arg(t.index); }

// Key codes of the game to Qt keys: 32 Space, 96..105 the keypad digits.
QKeyEvent MakeKey(QEvent::Type type, int code) {
  int key = code;
  Qt::KeyboardModifiers mods = Qt::NoModifier;
  QString text;
  if (code >= 96 && code <= 105) {
    key = Qt::Key_0 + (code - 96);
    mods = Qt::KeypadModifier;
    text = QString::number(code - 96);
  } else if (code == 32) {
    key = Qt::Key_Space;
    text = " ";
  } else if (code == 13) {
    key = Qt::Key_Return;
  } else if (code == 27) {
    key = Qt::Key_Escape;
  } else if (code >= 112 && code <= 123) {
    key = Qt::Key_F1 + (code - 112);
  } else if (code >= 0x20 && code <= 0x7E) {
    text = QChar(code);
  }
  return QKeyEvent(type, key, mods, text);
}
}  // namespace

void SeededPlatform::Seed(std::uint32_t seed) {
  seeded_ = true;
  generator_.seed(seed);
}

int SeededPlatform::UnqueuedDraw(int n) {
  if (!seeded_) return ScriptedPlatform::UnqueuedDraw(n);
  if (n <= 0) return 0;
  // The whole part of a uniform number in [0, 1) times n, from 32 random bits.
  return static_cast<int>((static_cast<std::uint64_t>(generator_()) * static_cast<std::uint64_t>(n)) >> 32);
}

Driver::Driver(JeuPoker& form, ScriptedPlatform& platform, std::function<void(const QString&)> out)
    : form_(form), platform_(platform), out_(std::move(out)) {}

void Driver::Error(const QString& reason) { out_(QStringLiteral("error: ") + reason); }

void Driver::FlushDrawErrors() {
  for (const auto& e : platform_.drawErrors) Error(e);
  platform_.drawErrors.clear();
}

void Driver::Execute(const QString& rawLine) {
  const QString line = rawLine.trimmed();
  if (line.isEmpty() || line.startsWith('#')) return;
  const int space = line.indexOf(' ');
  const QString cmd = space < 0 ? line : line.left(space);
  const QString rest = space < 0 ? QString() : line.mid(space + 1).trimmed();

  static const QHash<QString, void (Driver::*)(const QString&)> commands = {
      {"click", &Driver::Click},
      {"move", &Driver::Move},
      {"key", &Driver::Key},
      {"tick", &Driver::Tick},
      {"draw", &Driver::Draw},
      {"get", &Driver::Get},
      {"var", &Driver::Var},
      {"set", &Driver::Set},
      {"atyield", &Driver::AtYield},
      {"unyield", &Driver::Unyield},
      {"seed", &Driver::Seed},
      {"slept", &Driver::Slept},
      {"file", &Driver::File},
      {"shot", &Driver::Shot},
      {"close", &Driver::Close},
      {"mci", &Driver::Mci},
      {"mcianswer", &Driver::MciAnswer},
      {"display", &Driver::Display},
      {"net", &Driver::Net},
      {"wait", &Driver::Wait},
      {"coach", &Driver::Coach},
      {"scale", &Driver::Scale},
      {"window", &Driver::Window},
      {"rects", &Driver::Rects},
      {"resize", &Driver::Resize},
      {"pixels", &Driver::Pixels},
      {"at", &Driver::At},
  };
  const auto handler = commands.value(cmd);
  if (!handler) {
    Error(QStringLiteral("unknown command %1").arg(cmd));
  } else {
    // A command that refused its words leaves the draw errors met so far to a later command.
    // The flag is put back at once, as a command run at a yield inside this one sets its own.
    refused_ = false;
    (this->*handler)(rest);
    if (std::exchange(refused_, false)) return;
  }
  FlushDrawErrors();
}

void Driver::Refuse(const QString& reason) {
  Error(reason);
  refused_ = true;
}

void Driver::Tick(const QString& name) {
  TimerControl* t = form_.FindTimer(name);
  if (!t)
    Error(QStringLiteral("no timer %1").arg(name));
  else
    t->Fire();
}

void Driver::Draw(const QString& numbers) {
  std::vector<int> draws;
  for (const auto& part : numbers.split(' ', Qt::SkipEmptyParts)) {
    bool ok = false;
    const int v = part.toInt(&ok);
    if (!ok) return Refuse(QStringLiteral("draw takes whole numbers, not %1").arg(part));
    draws.push_back(v);
  }
  platform_.QueueDraws(draws);
}

void Driver::Set(const QString& text) {
  const int sp = text.indexOf(' ');
  if (sp < 0) return Refuse(QStringLiteral("set takes a name and a value"));
  VarOrSet(text.left(sp), true, text.mid(sp + 1));
}

void Driver::AtYield(const QString& text) {
  const int sp = text.indexOf(' ');
  bool ok = false;
  const int n = sp < 0 ? 0 : text.left(sp).toInt(&ok);
  if (!ok || n < 1) return Refuse(QStringLiteral("atyield takes a count from 1 and a command"));
  const QString inner = text.mid(sp + 1);
  platform_.AtYield(n, [this, inner, generation = yieldGeneration_] {
    if (generation == yieldGeneration_) Execute(inner);
  });
}

// The commands still waiting for a yield are dropped.
void Driver::Unyield(const QString& text) {
  if (!text.isEmpty()) return Refuse(QStringLiteral("unyield takes nothing"));
  ++yieldGeneration_;
}

void Driver::Seed(const QString& text) {
  bool ok = false;
  const uint seed = text.toUInt(&ok);
  auto* seeded = dynamic_cast<SeededPlatform*>(&platform_);
  if (!ok) return Refuse(QStringLiteral("seed takes a whole number from 0 to 4294967295"));
  if (!seeded) return Refuse(QStringLiteral("seed needs the platform of talvero-drive"));
  seeded->Seed(seed);
}

void Driver::Close(const QString&) { form_.close(); }

void Driver::Slept(const QString&) { out_(QStringLiteral("slept=%1").arg(platform_.sleptMs)); }

// A picture of the window as the player sees it, as PNG.
void Driver::Shot(const QString& name) {
  if (name.isEmpty()) return Refuse(QStringLiteral("shot takes a file name"));
  const QString path = startDirectory.isEmpty() ? name : QDir(startDirectory).absoluteFilePath(name);
  // The main form, or the display question while it waits alone at start.
  QWidget* shown =
      !form_.isVisible() && form_.AfficheForm->isVisible() ? static_cast<QWidget*>(form_.AfficheForm) : &form_;
  // The pictures drawn for the scale in force, not those of a scale left a moment ago.
  form_.WaitForPictures();
  if (!shown->grab().save(path, "PNG")) Error(QStringLiteral("%1 cannot be written").arg(name));
}

void Driver::Scale(const QString&) { out_(QStringLiteral("scale=") + table::ScaleText(form_.TableScale())); }

void Driver::Window(const QString&) {
  const QRect t = form_.TableGeometry();
  out_(QStringLiteral("window=%1x%2 table=%3,%4,%5x%6 fullscreen=%7")
           .arg(form_.width())
           .arg(form_.height())
           .arg(t.x())
           .arg(t.y())
           .arg(t.width())
           .arg(t.height())
           .arg(form_.isFullScreen() ? 1 : 0));
}

// Every control the player can see, with its rectangle in the window's pixels.
void Driver::Rects(const QString&) {
  if (!form_.isVisible()) return;
  QStringList lines;
  for (Control* c : form_.TableControls()) {
    if (!c->isVisibleTo(&form_)) continue;
    const QRect r(c->mapTo(&form_, QPoint(0, 0)), c->size());
    lines << QStringLiteral("rect %1=%2,%3,%4,%5")
                 .arg(c->FullName())
                 .arg(r.x())
                 .arg(r.y())
                 .arg(r.width())
                 .arg(r.height());
  }
  lines.sort();
  for (const QString& line : lines) out_(line);
}

void Driver::Resize(const QString& text) {
  QPoint numbers;
  if (!TwoNumbers(text, numbers) || numbers.x() < 0 || numbers.y() < 0)
    return Refuse(QStringLiteral("resize takes a width and a height"));
  const QSize size(numbers.x(), numbers.y());
  form_.resize(size);
  // A real window system answers the resize a moment later: wait for it, two seconds at most.
  QElapsedTimer waited;
  waited.start();
  do QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  while (form_.size() != size && waited.elapsed() < 2000);
  form_.WaitForPictures();
}

// The control a pointer at a point of the window reaches: the one the window system gives
// the mouse to there.
void Driver::At(const QString& text) {
  QPoint point;
  if (!TwoNumbers(text, point)) return Refuse(QStringLiteral("at takes x and y in the window's pixels"));
  QHash<const QWidget*, Control*> controls;
  for (Control* c : form_.TableControls()) controls.insert(c, c);
  QString name = QStringLiteral("none");
  for (QWidget* w = form_.childAt(point); w; w = w->parentWidget())
    if (Control* c = controls.value(w)) {
      name = c->FullName();
      break;
    }
  out_(QStringLiteral("at %1,%2=%3").arg(point.x()).arg(point.y()).arg(name));
}

// The size in pixels of the picture a control shows, as drawn for the scale in force.
void Driver::Pixels(const QString& text) {
  const Target t = ParseTarget(text, false);
  if (!t.error.isEmpty()) return Error(t.error);
  Control* c = t.ok ? form_.FindControl(t.name, t.index) : nullptr;
  if (!c) return Error(QStringLiteral("no control %1").arg(text));
  form_.WaitForPictures();
  const QString head = TargetText(t) + QStringLiteral(".Pixels=");
  if (!c->GetPicture()) return out_(head + QStringLiteral("none"));
  const QPixmap& pm = c->GetPicture()->Pixmap(form_.PictureRatio());
  out_(head + QStringLiteral("%1x%2").arg(pm.width()).arg(pm.height()));
}

// The command texts sent to the music player since the last `mci`.
void Driver::Mci(const QString&) {
  for (std::size_t i = mciShown_; i < platform_.mciCommands.size(); ++i) out_("mci=" + platform_.mciCommands[i]);
  mciShown_ = platform_.mciCommands.size();
}

void Driver::MciAnswer(const QString& text) {
  const int sp = text.indexOf(' ');
  if (sp < 0) return Refuse(QStringLiteral("mcianswer takes a key and a value"));
  platform_.mciAnswers[QStringLiteral("status sequence ") + text.left(sp)] = text.mid(sp + 1).trimmed();
}

void Driver::Display(const QString&) {
  out_(QStringLiteral("display=%1x%2").arg(platform_.display.width).arg(platform_.display.height));
}

void Driver::Net(const QString& state) {
  if (state == "on")
    platform_.connected = true;
  else if (state == "off")
    platform_.connected = false;
  else
    Refuse(QStringLiteral("net takes on or off"));
}

// Real time passes: network replies arrive; the game's timers still fire only by `tick`.
void Driver::Wait(const QString& text) {
  bool ok = false;
  const int ms = text.toInt(&ok);
  if (!ok || ms < 0) return Refuse(QStringLiteral("wait takes milliseconds"));
  QEventLoop loop;
  QTimer::singleShot(ms, &loop, &QEventLoop::quit);
  loop.exec();
}

// What a player's pointer at the centre of `c` reaches in c's window (the main form, or the
// display question), or null when c is hidden or covered there.
QWidget* Driver::Reached(Control* c) const {
  QWidget* window = c->window();
  if (!window->isVisible() || (c != window && !c->isVisibleTo(window))) return nullptr;
  const QPoint centre = c->mapTo(window, c->rect().center());
  QWidget* reached = c == window ? window : window->childAt(centre);
  if (!reached || !(reached == c || c->isAncestorOf(reached))) return nullptr;
  return reached;
}

QWidget* Driver::PointerAt(const QString& text, QPointF& centre) {
  const Target t = ParseTarget(text, false);
  if (!t.error.isEmpty()) {
    Error(t.error);
    return nullptr;
  }
  Control* c = t.ok ? form_.FindControl(t.name, t.index) : nullptr;
  if (!c) {
    Error(QStringLiteral("no control %1").arg(text));
    return nullptr;
  }
  QWidget* reached = Reached(c);
  if (!reached) {
    Error(QStringLiteral("%1 cannot be reached").arg(TargetText(t)));
    return nullptr;
  }
  centre = reached->mapFrom(c, c->rect().center());
  return reached;
}

void Driver::Click(const QString& text) {
  QPointF local;
  QWidget* reached = PointerAt(text, local);
  if (!reached) return;
  const QPointF global = reached->mapToGlobal(local);
  QPointer<QWidget> guard(reached);
  QMouseEvent press(QEvent::MouseButtonPress, local, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(reached, &press);
  if (!guard) return;
  QMouseEvent release(QEvent::MouseButtonRelease, local, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(reached, &release);
}

void Driver::Move(const QString& text) {
  QPointF local;
  QWidget* reached = PointerAt(text, local);
  if (!reached) return;
  QMouseEvent move(QEvent::MouseMove, local, reached->mapToGlobal(local), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(reached, &move);
}

void Driver::Key(const QString& text) {
  bool ok = false;
  const int code = text.toInt(&ok);
  if (!ok || code < 0 || code > 255) return Error(QStringLiteral("key takes a key code from 0 to 255"));
  QWidget* target = form_.focusWidget();
  if (!target) target = &form_;
  QPointer<QWidget> guard(target);
  QKeyEvent down = MakeKey(QEvent::KeyPress, code);
  QApplication::sendEvent(target, &down);
  if (!guard) return;
  QKeyEvent up = MakeKey(QEvent::KeyRelease, code);
  QApplication::sendEvent(target, &up);
}

void Driver::Get(const QString& text) {
  const Target t = ParseTarget(text, true);
  if (!t.error.isEmpty()) return Error(t.error);
  if (!t.ok) return Error(QStringLiteral("get takes NAME.PROP or NAME(i).PROP"));
  const QString head = TargetText(t) + "." + t.prop + "=";
  if (t.name == "JeuPoker" && t.index < 0) {
    if (t.prop == "Caption") return out_(head + form_.windowTitle());
    // The table's logical size, whatever its scale on screen.
    if (t.prop == "Width") return out_(head + QString::number(table::kLogicalSize.width() * kTwipsPerPixel));
    if (t.prop == "Height") return out_(head + QString::number(table::kLogicalSize.height() * kTwipsPerPixel));
    if (t.prop == "Visible") return out_(head + varfmt::Format(form_.isVisible()));
    return Error(QStringLiteral("JeuPoker has no property %1").arg(t.prop));
  }
  if (t.name == "Coach" && t.index < 0) {
    if (t.prop == "Visible") return out_(head + varfmt::Format(form_.CoachVisible()));
    return Error(QStringLiteral("Coach has no property %1").arg(t.prop));
  }
  if (TimerControl* timer = t.index < 0 ? form_.FindTimer(t.name) : nullptr) {
    if (t.prop == "Interval") return out_(head + QString::number(timer->Interval()));
    if (t.prop == "Enabled") return out_(head + varfmt::Format(timer->Enabled()));
    return Error(QStringLiteral("%1 has no property %2").arg(t.name, t.prop));
  }
  Control* c = form_.FindControl(t.name, t.index);
  if (!c) return Error(QStringLiteral("no control %1").arg(TargetText(t)));
  const QString& p = t.prop;
  QString v;
  if (p == "Caption")
    v = varfmt::Escape(c->Caption());
  else if (p == "Visible")
    v = varfmt::Format(c->Visible());
  else if (p == "Left")
    v = QString::number(c->Left());
  else if (p == "Top")
    v = QString::number(c->Top());
  else if (p == "Width")
    v = QString::number(c->Width());
  else if (p == "Height")
    v = QString::number(c->Height());
  else if (p == "Picture")
    v = c->GetPicture() ? c->GetPicture()->name : QString();
  else if (p == "ForeColor")
    v = QString::number(c->ForeColor());
  else if (p == "BackColor")
    v = QString::number(c->BackColor());
  else if (p == "MousePointer")
    v = QString::number(c->MousePointer());
  else if (p == "BevelWidth")
    v = QString::number(c->BevelWidth());
  else if (p == "Enabled")
    v = varfmt::Format(c->Enabled());
  else if (p == "Focus")
    v = varfmt::Format(form_.focusWidget() == c);
  else if ((p == "Address" || p == "Text") && c->findChild<WebPanel*>())
    v = varfmt::Escape(p == "Address" ? c->findChild<WebPanel*>()->Address() : c->findChild<WebPanel*>()->Text());
  else
    return Error(QStringLiteral("unknown property %1").arg(p));
  out_(head + v);
}

void Driver::Var(const QString& text) { VarOrSet(text, false, {}); }

void Driver::VarOrSet(const QString& text, bool set, const QString& value) {
  const Target t = ParseTarget(text, false);
  if (!t.error.isEmpty()) return Error(t.error);
  const JeuPoker::Variable* v = t.ok ? form_.FindVariable(t.name) : nullptr;
  if (!v) return Error(QStringLiteral("no variable %1").arg(text));
  const bool isArray = v->low >= 0 || v->high >= 0;
  if (isArray && t.index < 0) return Error(QStringLiteral("%1 is an array: give an index").arg(t.name));
  if (!isArray && t.index >= 0) return Error(QStringLiteral("%1 is not an array").arg(t.name));
  if (isArray && (t.index < v->low || t.index > v->high))
    return Error(QStringLiteral("index %1 is outside %2(%3 to %4)").arg(t.index).arg(t.name).arg(v->low).arg(v->high));
  if (set) {
    if (!v->set(t.index, value)) Error(QStringLiteral("%1 does not fit %2").arg(value, TargetText(t)));
    return;
  }
  out_(TargetText(t) + "=" + v->get(t.index));
}

void Driver::File(const QString& name) {
  if (name.isEmpty()) return Error(QStringLiteral("file takes a name"));
  QFile f(QDir(form_.ProgramDir()).filePath(name));
  QFileInfo info(f);
  if (!info.exists() || info.isDir()) return out_(name + " absent");
  if (!f.open(QIODevice::ReadOnly)) return Error(QStringLiteral("%1 cannot be read").arg(name));
  out_(name + "=" + QString::fromLatin1(f.readAll().toHex()));
}

void Driver::Coach(const QString& what) {
  if (what.isEmpty())
    out_(form_.LigneCoach());
  else if (what == "session")
    out_(form_.LigneSessionCoach());
  else if (what == "session2")
    out_(form_.LigneSessionCoach2());
  else if (what.startsWith(QLatin1String("shot ")))
    CoachShot(what.mid(5).trimmed());
  else
    Refuse(QStringLiteral("coach takes nothing, session, session2 or shot FILE"));
}

void Driver::CoachShot(const QString& file) {
  QWidget* coach = form_.FenêtreCoach();
  if (!coach || !coach->isVisible()) return Error(QStringLiteral("the coach is not open"));
  const QString path = startDirectory.isEmpty() ? file : QDir(startDirectory).absoluteFilePath(file);
  const QPixmap table = form_.grab();
  const QPixmap beside = coach->grab();
  const qreal dpr = table.devicePixelRatio();
  QPixmap both(QSize(qRound((form_.width() + 8 + coach->width()) * dpr),
                     qRound(std::max(form_.height(), coach->height()) * dpr)));
  both.setDevicePixelRatio(dpr);
  both.fill(Qt::black);
  QPainter p(&both);
  p.drawPixmap(0, 0, table);
  p.drawPixmap(form_.width() + 8, 0, beside);
  p.end();
  if (!both.save(path, "PNG")) Error(QStringLiteral("%1 cannot be written").arg(file));
}
