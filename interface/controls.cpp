#include "interface/controls.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "core/table_facts.h"

namespace {
QPixmap& CardPointerPixmap() {
  static QPixmap pixmap;
  return pixmap;
}
QPoint& CardPointerHotSpot() {
  static QPoint at(4, 1);
  return at;
}
bool timersAutomatic = true;

int Px(int twips) { return static_cast<int>(std::lround(twips / static_cast<double>(kTwipsPerPixel))); }

int VbShift(Qt::KeyboardModifiers m) {
  int s = 0;
  if (m & Qt::ShiftModifier) s |= 1;
  if (m & Qt::ControlModifier) s |= 2;
  if (m & Qt::AltModifier) s |= 4;
  return s;
}

int VbButton(Qt::MouseButton b) {
  switch (b) {
    case Qt::LeftButton: return 1;
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 0;
  }
}
}  // namespace

QColor VbColor(Long bgr) {
  const auto v = static_cast<std::uint32_t>(bgr);
  return QColor(static_cast<int>(v & 0xFF), static_cast<int>((v >> 8) & 0xFF), static_cast<int>((v >> 16) & 0xFF));
}

Control::Control(ControlKind kind, const QString& name, int index, QWidget* parent)
    : QWidget(parent), kind_(kind), name_(name), index_(index) {
  setObjectName(FullName());
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent, false);
  switch (kind_) {
    case ControlKind::Button:
      bevelWidth_ = 3;
      setFocusPolicy(Qt::StrongFocus);
      break;
    case ControlKind::Panel:
      bevelWidth_ = 1;
      setFocusPolicy(Qt::NoFocus);
      break;
    case ControlKind::Line:
      setAttribute(Qt::WA_TransparentForMouseEvents);
      setFocusPolicy(Qt::NoFocus);
      break;
    default: setFocusPolicy(Qt::NoFocus); break;
  }
  if (kind_ == ControlKind::Label || kind_ == ControlKind::Image) backColor_ = couleur::kNoir;
}

QString Control::FullName() const { return index_ < 0 ? name_ : QStringLiteral("%1(%2)").arg(name_).arg(index_); }

void Control::SetCaption(const QString& text) {
  if (caption_ == text) return;
  caption_ = text;
  update();
}

void Control::SetVisible(bool v) {
  visible_ = v;
  setVisible(v);
}

void Control::SetLeft(int twips) {
  logical_.moveLeft(Px(twips));
  ApplyGeometry();
}
void Control::SetTop(int twips) {
  logical_.moveTop(Px(twips));
  ApplyGeometry();
}
void Control::SetWidth(int twips) {
  logical_.setWidth(std::max(0, Px(twips)));
  ApplyGeometry();
}
void Control::SetHeight(int twips) {
  logical_.setHeight(std::max(0, Px(twips)));
  ApplyGeometry();
}
void Control::Move(int left, int top, int w, int h) {
  logical_ = QRect(Px(left), Px(top), std::max(0, Px(w)), std::max(0, Px(h)));
  ApplyGeometry();
}

void Control::SetScale(double s) {
  if (scale_ == s) return;
  scale_ = s;
  ApplyGeometry();
  update();
}

void Control::ApplyGeometry() {
  if (isWindow()) {
    // A window of its own (the display question) is placed by its frame, and never scaled.
    move(logical_.topLeft());
    return resize(logical_.size());
  }
  if (scale_ == 1) return setGeometry(logical_);
  // Each edge is scaled and rounded on its own, so that controls that touch still touch.
  auto at = [this](int v) { return static_cast<int>(std::lround(v * scale_)); };
  const int left = at(logical_.x()), top = at(logical_.y());
  setGeometry(left, top, at(logical_.x() + logical_.width()) - left, at(logical_.y() + logical_.height()) - top);
}

QPoint Control::Logical(const QPointF& widgetPoint) const {
  if (scale_ == 1 || width() <= 0 || height() <= 0) return widgetPoint.toPoint();
  return QPoint(static_cast<int>(std::floor(widgetPoint.x() * logical_.width() / width())),
                static_cast<int>(std::floor(widgetPoint.y() * logical_.height() / height())));
}

void Control::SetForeColor(Long bgr) {
  if (foreColor_ == bgr) return;
  foreColor_ = bgr;
  update();
}

void Control::SetBackColor(Long bgr) {
  if (backColor_ == bgr) return;
  backColor_ = bgr;
  update();
}

void Control::SetMousePointer(int pointer) {
  mousePointer_ = pointer;
  ApplyCursor();
}

void Control::ApplyCursor() {
  switch (mousePointer_) {
    case kFlèche: setCursor(Qt::UpArrowCursor); break;
    case kInterdit: setCursor(Qt::ForbiddenCursor); break;
    case kCarte:
      if (!CardPointerPixmap().isNull())
        setCursor(QCursor(CardPointerPixmap(), CardPointerHotSpot().x(), CardPointerHotSpot().y()));
      else
        setCursor(Qt::PointingHandCursor);
      break;
    case 1: setCursor(Qt::ArrowCursor); break;
    default: unsetCursor(); break;
  }
}

void Control::SetCardPointer(const QPixmap& pixmap, QPoint hotSpot) {
  CardPointerPixmap() = pixmap;
  CardPointerHotSpot() = hotSpot;
}

void Control::SetBevelWidth(int w) {
  if (bevelWidth_ == w) return;
  bevelWidth_ = w;
  update();
}

void Control::SetPicture(Picture p) {
  if (picture_ == p) return;
  picture_ = p;
  update();
}

void Control::SetAlignment(int a) {
  alignment_ = a;
  update();
}

void Control::SetFontSpec(const QString& family, double points, bool bold) {
  QFont f(family);
  f.setPointSizeF(points);
  f.setBold(bold);
  f.setStyleStrategy(QFont::PreferAntialias);
  setFont(f);
}

void Control::SetTransparent(bool t) {
  transparent_ = t;
  update();
}

void Control::SetLine(int x1, int y1, int x2, int y2) {
  const int l = std::min(x1, x2), t = std::min(y1, y2);
  logical_ = QRect(Px(l) - 1, Px(t) - 1, Px(std::abs(x2 - x1)) + 3, Px(std::abs(y2 - y1)) + 3);
  ApplyGeometry();
  lineFrom_ = QPoint(Px(x1 - l) + 1, Px(y1 - t) + 1);
  lineTo_ = QPoint(Px(x2 - l) + 1, Px(y2 - t) + 1);
  update();
}

void Control::SetFocus() {
  // A control that cannot take the focus is error 5 in the original design; here every
  // caller gives the focus to a button, so it simply moves.
  setFocus(Qt::OtherFocusReason);
}

void Control::PaintBevel(QPainter& p, const QRect& r, bool pressed) const {
  const QColor base = VbColor(backColor_);
  const QColor light = base.lighter(160), dark = base.darker(220);
  const int depth = std::min(bevelWidth_, 8);
  for (int i = 0; i < depth; ++i) {
    p.setPen(pressed ? dark : light);
    p.drawLine(r.left() + i, r.top() + i, r.right() - i, r.top() + i);
    p.drawLine(r.left() + i, r.top() + i, r.left() + i, r.bottom() - i);
    p.setPen(pressed ? light : dark);
    p.drawLine(r.left() + i, r.bottom() - i, r.right() - i, r.bottom() - i);
    p.drawLine(r.right() - i, r.top() + i, r.right() - i, r.bottom() - i);
  }
}

// The picture in the logical rectangle `r`. Scaled, a picture drawn for the ratio in force
// lands on whole device pixels, one of its pixels to one of the screen's.
void Control::PaintPicture(QPainter& p, const QRect& r) const {
  const QPixmap& pm = picture_->Pixmap(scale_ * devicePixelRatioF());
  if (pm.isNull()) return;
  const QSize ps = pm.deviceIndependentSize().toSize();
  if (kind_ == ControlKind::Button && fitPicture_) {
    const QSize fit = ps.scaled(r.size(), Qt::KeepAspectRatio);
    QRect to(QPoint((r.width() - fit.width()) / 2, (r.height() - fit.height()) / 2), fit);
    if (pressed_) to.translate(1, 1);
    p.drawPixmap(to, pm);
    return;
  }
  QPoint at(0, 0);
  if (kind_ == ControlKind::Button) {
    at = QPoint((r.width() - ps.width()) / 2, (r.height() - ps.height()) / 2);
    if (pressed_) at += QPoint(1, 1);
  }
  if (scale_ == 1) return p.drawPixmap(at, pm);
  const QPointF corner = p.transform().map(QPointF(at));
  const QRectF to(QPointF(std::round(corner.x()), std::round(corner.y())), pm.deviceIndependentSize() * scale_);
  p.save();
  p.resetTransform();
  p.drawPixmap(to, pm, QRectF(pm.rect()));
  p.restore();
}

void Control::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::TextAntialiasing);
  p.setRenderHint(QPainter::SmoothPixmapTransform);
  // Everything is drawn in logical pixels; scaled, the painter maps them onto the widget.
  const QRect r(QPoint(0, 0), logical_.size());
  if (scale_ != 1 && r.width() > 0 && r.height() > 0)
    p.scale(width() / static_cast<qreal>(r.width()), height() / static_cast<qreal>(r.height()));
  if (kind_ == ControlKind::Line) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(VbColor(foreColor_), 2));
    p.drawLine(lineFrom_, lineTo_);
    return;
  }
  const bool pressedLook = kind_ == ControlKind::Button && (pressed_ || bevelWidth_ <= 1);
  if (!(kind_ == ControlKind::Label && transparent_) && kind_ != ControlKind::Image) p.fillRect(r, VbColor(backColor_));

  if (picture_) PaintPicture(p, r);

  if (!caption_.isEmpty()) {
    p.setPen(VbColor(foreColor_));
    p.setFont(font());
    int flags = Qt::TextWordWrap;
    QRect tr = r;
    if (kind_ == ControlKind::Label) {
      flags |= Qt::AlignTop;
      flags |= alignment_ == 1 ? Qt::AlignRight : alignment_ == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
    } else {
      flags |= Qt::AlignCenter;
      tr = r.adjusted(bevelWidth_, bevelWidth_, -bevelWidth_, -bevelWidth_);
      if (pressed_) tr.translate(1, 1);
    }
    p.drawText(tr, flags, caption_);
  }

  if (kind_ == ControlKind::Panel || kind_ == ControlKind::Button)
    PaintBevel(p, r, pressedLook && kind_ == ControlKind::Button);
  if (kind_ == ControlKind::Button && hasFocus()) {
    // A thin focus mark inside the bevel, as buttons show the keyboard focus.
    QPen pen(VbColor(foreColor_));
    pen.setStyle(Qt::DotLine);
    p.setPen(pen);
    const int m = std::max(bevelWidth_, 1) + 2;
    p.drawRect(r.adjusted(m, m, -m - 1, -m - 1));
  }
  if (kind_ == ControlKind::PictureBox) {
    p.setPen(VbColor(couleur::kGrisFoncé));
    p.drawRect(r.adjusted(0, 0, -1, -1));
  }
}

void Control::mousePressEvent(QMouseEvent* e) {
  if (kind_ == ControlKind::Button) {
    pressed_ = true;
    setFocus(Qt::MouseFocusReason);
    update();
  }
  const QPoint pos = Logical(e->position());
  if (MouseDown)
    MouseDown(VbButton(e->button()), VbShift(e->modifiers()), pos.x() * kTwipsPerPixel, pos.y() * kTwipsPerPixel);
  e->accept();
}

void Control::mouseReleaseEvent(QMouseEvent* e) {
  const bool wasPressed = pressed_;
  pressed_ = false;
  if (wasPressed) update();
  const QPoint pos = Logical(e->position());
  if (MouseUp)
    MouseUp(VbButton(e->button()), VbShift(e->modifiers()), pos.x() * kTwipsPerPixel, pos.y() * kTwipsPerPixel);
  // A click is a press and a release over the same control with the left button.
  if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()) && Click) Click();
  e->accept();
}

void Control::mouseMoveEvent(QMouseEvent* e) {
  const QPoint pos = Logical(e->position());
  int button = 0;
  if (e->buttons() & Qt::LeftButton) button |= 1;
  if (e->buttons() & Qt::RightButton) button |= 2;
  if (MouseMove) MouseMove(button, VbShift(e->modifiers()), pos.x() * kTwipsPerPixel, pos.y() * kTwipsPerPixel);
  e->accept();
}

int VbKeyCode(const QKeyEvent* e);

void Control::keyPressEvent(QKeyEvent* e) {
  if (KeyDown) KeyDown(VbKeyCode(e), VbShift(e->modifiers()));
  e->accept();
}

void Control::keyReleaseEvent(QKeyEvent* e) {
  if (e->isAutoRepeat()) return;
  if (KeyUp) KeyUp(VbKeyCode(e), VbShift(e->modifiers()));
  e->accept();
}

// Key codes as the game knows them: Space 32, keypad 0..9 as 96..105, letters and digits
// as their capital ASCII codes.
int VbKeyCode(const QKeyEvent* e) {
  const int k = e->key();
  if (e->modifiers() & Qt::KeypadModifier) {
    if (k >= Qt::Key_0 && k <= Qt::Key_9) return 96 + (k - Qt::Key_0);
    switch (k) {
      case Qt::Key_Insert: return 96;
      case Qt::Key_End: return 97;
      case Qt::Key_Down: return 98;
      case Qt::Key_PageDown: return 99;
      case Qt::Key_Left: return 100;
      case Qt::Key_Clear: return 101;
      default: break;
    }
  }
  switch (k) {
    case Qt::Key_Space: return 32;
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Tab: return 9;
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Left: return 37;
    case Qt::Key_Up: return 38;
    case Qt::Key_Right: return 39;
    case Qt::Key_Down: return 40;
    default: break;
  }
  if (k >= Qt::Key_F1 && k <= Qt::Key_F12) return 112 + (k - Qt::Key_F1);
  if (k >= 0x20 && k <= 0x7E) return k;
  return 0;
}

// ---------------------------------------------------------------------------------------

TimerControl::TimerControl(const QString& name, int interval, bool enabled, QObject* parent)
    : QObject(parent), name_(name), interval_(interval), enabled_(enabled) {
  setObjectName(name);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { Fire(); });
  Rearm();
}

void TimerControl::SetInterval(int ms) {
  interval_ = ms;
  Rearm();
}

void TimerControl::SetEnabled(bool e) {
  enabled_ = e;
  Rearm();
}

void TimerControl::Fire() {
  if (Tick) Tick();
}

void TimerControl::Rearm() {
  timer_.stop();
  if (timersAutomatic && enabled_ && interval_ > 0) timer_.start(interval_);
}

void TimerControl::SetAutomatic(bool on) { timersAutomatic = on; }
bool TimerControl::Automatic() { return timersAutomatic; }
