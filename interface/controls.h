// The form's control classes over Qt widgets.
//
// Every control carries the properties the game's routines read and write: Caption,
// Visible, Left/Top/Width/Height in twips (15 to the pixel), Picture (a handle: pictures
// are compared by identity), ForeColor/BackColor as 0xBBGGRR, MousePointer, BevelWidth,
// Enabled and Alignment. Events are plain callbacks set by the form.
//
// Terms: a twip is 1/15 of a logical pixel; the control keeps whole logical pixels, so a
// position read back is a multiple of 15. The table is 1024 x 768 logical pixels; on screen it
// is shown at a scale s, and a control's widget is its logical place times s. Visible is the
// control's own flag, not whether an ancestor is shown. BevelWidth is the depth of the drawn
// 3D edge, 0 or 1 for a pressed button. MousePointer is 0 (the default), 10 (up arrow: will
// work), 12 (no entry: will refuse) or 99 (the card pointer). A control array has bounds like
// the game's arrays; an index outside them is run-time error 9.
// Cache: a StoredPicture is drawn the first time it is shown and kept until the scale changes.
// Threads: controls live on the GUI thread and are only touched there; a picture drawn by a
// worker (the card faces) reaches them through its draw function, called on that thread.
#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "core/colours.h"
#include "core/vb.h"

constexpr int kTwipsPerPixel = 15;

// A picture with identity. Controls hold a pointer to it; two controls show "the same
// picture" exactly when they hold the same pointer. A picture is drawn for a ratio of device
// pixels per logical pixel (the table's scale times the screen's pixel ratio), the first time
// it is shown. When the ratio changes, the form draws it again in the background and gives it
// the new pixmap; until then the last one is shown, scaled.
class StoredPicture {
 public:
  // `draw` makes the picture at a ratio on the GUI thread; `render`, when given, makes it as an
  // image on any thread. `ratio` is the ratio Pixmap() draws at when nothing was drawn yet.
  StoredPicture(QString name, qreal ratio, std::function<QPixmap(qreal)> draw, std::function<QImage(qreal)> render = {})
      : name(std::move(name)), ratio_(ratio), draw_(std::move(draw)), render_(std::move(render)) {}
  const QString name;
  // The picture as last drawn, drawn now at the first ratio if it never was.
  const QPixmap& Pixmap() const { return Pixmap(ratio_); }
  // The picture for `ratio`: drawn now if it never was, otherwise the last one drawn, which is
  // at another ratio while the new one renders.
  const QPixmap& Pixmap(qreal ratio) const {
    if (!drawn_) {
      pixmap_ = draw_(ratio);
      ratio_ = ratio;
      drawn_ = true;
    }
    return pixmap_;
  }
  bool Drawn() const { return drawn_; }
  qreal Ratio() const { return ratio_; }
  // Drawing off the GUI thread, for the pictures that can.
  bool Renders() const { return static_cast<bool>(render_); }
  QImage Render(qreal ratio) const { return render_(ratio); }
  // Draws the picture at `ratio` on the GUI thread (the card faces, once their worker has them).
  QPixmap Draw(qreal ratio) const { return draw_(ratio); }
  // The picture drawn at a new ratio replaces the last one.
  void Adopt(qreal ratio, QPixmap pixmap) const {
    pixmap_ = std::move(pixmap);
    ratio_ = ratio;
    drawn_ = true;
  }

 private:
  mutable QPixmap pixmap_;
  mutable qreal ratio_;
  mutable bool drawn_ = false;
  std::function<QPixmap(qreal)> draw_;
  std::function<QImage(qreal)> render_;
};
using Picture = const StoredPicture*;

// 0xBBGGRR <-> QColor.
QColor VbColor(Long bgr);

enum class ControlKind { Panel, Button, Label, Image, PictureBox, Line };

class Control : public QWidget {
 public:
  Control(ControlKind kind, const QString& name, int index, QWidget* parent);

  ControlKind Kind() const { return kind_; }
  const QString& Name() const { return name_; }
  int Index() const { return index_; }  // -1 outside a control array
  QString FullName() const;

  QString Caption() const { return caption_; }
  void SetCaption(const QString& text);
  bool Visible() const { return visible_; }
  void SetVisible(bool v);
  int Left() const { return logical_.x() * kTwipsPerPixel; }
  int Top() const { return logical_.y() * kTwipsPerPixel; }
  int Width() const { return logical_.width() * kTwipsPerPixel; }
  int Height() const { return logical_.height() * kTwipsPerPixel; }
  // The place in logical pixels (a twip is a fifteenth of one), whatever the table's scale.
  QRect LogicalGeometry() const { return logical_; }
  QSize LogicalSize() const { return logical_.size(); }
  // The table's scale: the control is shown `s` times its logical size. Positions, sizes and
  // the coordinates of mouse events stay logical.
  double Scale() const { return scale_; }
  void SetScale(double s);
  void SetLeft(int twips);
  void SetTop(int twips);
  void SetWidth(int twips);
  void SetHeight(int twips);
  void Move(int left, int top, int w, int h);
  Long ForeColor() const { return foreColor_; }
  Long BackColor() const { return backColor_; }
  void SetForeColor(Long bgr);
  void SetBackColor(Long bgr);
  int MousePointer() const { return mousePointer_; }
  void SetMousePointer(int pointer);
  int BevelWidth() const { return bevelWidth_; }
  void SetBevelWidth(int width);
  bool Enabled() const { return isEnabled(); }
  void SetEnabled(bool e) { setEnabled(e); }
  Picture GetPicture() const { return picture_; }
  void SetPicture(Picture p);
  int Alignment() const { return alignment_; }  // 0 left, 1 right, 2 centre
  void SetAlignment(int a);
  // A button's picture is drawn with its caption, a panel's caption is centred.
  void SetFontSpec(const QString& family, double points, bool bold = false);
  bool Transparent() const { return transparent_; }
  void SetTransparent(bool t);  // a label that shows what lies beneath
  // A button whose picture is scaled down to fit it, instead of being centred and cut.
  void SetFitPicture(bool fit) { fitPicture_ = fit; }
  void SetLine(int x1, int y1, int x2, int y2);  // a drawn line, in parent twips
  void SetFocus();

  // Events. Button: 1 left, 2 right; shift as VB flags; x, y in twips.
  std::function<void()> Click;
  std::function<void(int button, int shift, int x, int y)> MouseDown;
  std::function<void(int button, int shift, int x, int y)> MouseUp;
  std::function<void(int button, int shift, int x, int y)> MouseMove;
  std::function<void(int keyCode, int shift)> KeyDown;
  std::function<void(int keyCode, int shift)> KeyUp;

  // Pointer 99 shows this picture as the cursor, its tip at `hotSpot` in its own pixels.
  static void SetCardPointer(const QPixmap& pixmap, QPoint hotSpot);
  // Shows the card pointer again, after it changed.
  void RefreshCursor() { ApplyCursor(); }

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void keyPressEvent(QKeyEvent*) override;
  void keyReleaseEvent(QKeyEvent*) override;

 private:
  void PaintBevel(QPainter& p, const QRect& r, bool pressed) const;
  void PaintPicture(QPainter& p, const QRect& r) const;
  void ApplyCursor();
  // Places the widget at the logical place times the scale.
  void ApplyGeometry();
  // A point of the widget in logical pixels.
  QPoint Logical(const QPointF& widgetPoint) const;

  ControlKind kind_;
  QString name_;
  int index_;
  QString caption_;
  bool visible_ = true;
  Long foreColor_ = couleur::kNoir;
  Long backColor_ = couleur::kGrisClair;
  int mousePointer_ = 0;
  int bevelWidth_ = 0;
  Picture picture_ = nullptr;
  int alignment_ = 0;
  bool transparent_ = false;
  bool fitPicture_ = false;
  bool pressed_ = false;
  QPoint lineFrom_, lineTo_;
  QRect logical_;
  double scale_ = 1;
};

// A timer control: Interval in ms, Enabled, and a Timer event.
class TimerControl : public QObject {
 public:
  TimerControl(const QString& name, int interval, bool enabled, QObject* parent);
  const QString& Name() const { return name_; }
  int Interval() const { return interval_; }
  void SetInterval(int ms);
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool e);
  void Fire();  // the Timer event once
  std::function<void()> Tick;
  // Off in talvero-drive and tests: timers fire only when asked to.
  static void SetAutomatic(bool on);
  static bool Automatic();

 private:
  void Rearm();
  QString name_;
  int interval_;
  bool enabled_;
  QTimer timer_;
};

// A control array with VB bounds; an index outside them is run-time error 9.
template <class T>
class ControlArray {
 public:
  ControlArray() = default;
  ControlArray(int low, int high) : low_(low), items_(static_cast<std::size_t>(high - low + 1), nullptr) {}
  T& operator()(long long i) const {
    if (i < low_ || i > High()) vb::RuntimeError(vb::SubscriptOutOfRange);
    return *items_[static_cast<std::size_t>(i - low_)];
  }
  void Set(int i, T* c) { items_.at(static_cast<std::size_t>(i - low_)) = c; }
  int Low() const { return low_; }
  int High() const { return low_ + static_cast<int>(items_.size()) - 1; }
  bool Has(long long i) const { return i >= low_ && i <= High() && items_[static_cast<std::size_t>(i - low_)]; }

 private:
  int low_ = 0;
  std::vector<T*> items_;
};
