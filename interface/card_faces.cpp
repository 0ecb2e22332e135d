#include "interface/card_faces.h"

#include <malloc.h>

#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cstdlib>

#include "interface/canvas.h"
#include "interface/deck_svg.h"
#include "services/startup_stages.h"

namespace pics {

namespace {
std::mutex& CacheMutex() {
  static std::mutex m;
  return m;
}
QSvgRenderer*& DeckLeftAtExit() {
  static QSvgRenderer* deck = nullptr;
  return deck;
}
std::vector<std::shared_ptr<CardFaces>>& Cache() {
  static auto* cache = new std::vector<std::shared_ptr<CardFaces>>;
  return *cache;
}
// At exit (when a program ends without returning from main) the workers stop before the
// statics they use go. Registered once a worker has drawn
// from a document (stage 0) and again from the whole deck (stage 1), so after the statics that
// drawing created, and so run before their destruction.
void StopWorkersAtExit(int stage) {
  static std::once_flag once[2];
  std::call_once(once[stage], [] { std::atexit(CardFaces::StopAll); });
}
}  // namespace

std::shared_ptr<CardFaces> CardFaces::For(const Sizes& sizes) {
  // Every form of the process shares the faces of its sizes: the game has one form, the
  // tests and the benchmarks build many. The cache lives as long as the process.
  const std::lock_guard lock(CacheMutex());
  auto* cache = &Cache();
  for (const auto& faces : *cache)
    if (faces->sizes_ == sizes) return faces;
  cache->push_back(std::make_shared<CardFaces>(sizes));
  return cache->back();
}

void CardFaces::StopAll() {
  std::vector<std::shared_ptr<CardFaces>> all;
  {
    const std::lock_guard lock(CacheMutex());
    all = Cache();
  }
  for (const auto& faces : all) faces->Stop();
}

CardFaces::CardFaces(const Sizes& sizes)
    : sizes_(sizes),
      faces_(static_cast<std::size_t>(sizes.faces)),
      small_(static_cast<std::size_t>(sizes.smalls)),
      worker_([this] { Render(); }) {}

CardFaces::~CardFaces() { Stop(); }

void CardFaces::Stop() {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
    drawn_.notify_all();
  }
  if (worker_.joinable()) worker_.join();
}

void CardFaces::Continue() {
  const std::lock_guard lock(mutex_);
  goOn_ = true;
  drawn_.notify_all();
}

void CardFaces::Render() {
  auto publish = [&](std::vector<Slot>& store, int code, QImage image) {
    const std::lock_guard lock(mutex_);
    store[static_cast<std::size_t>(code)].image = std::move(image);
    store[static_cast<std::size_t>(code)].drawn = true;
    drawn_.notify_all();
  };
  // The back comes from a document holding only the back: a fiftieth of the deck, parsed in
  // a moment. The whole deck is parsed once the first frame is out.
  const int back = sizes_.faces - 1;
  {
    QSvgRenderer alone(DeckElementDocument(DeckFile(), CardElement(back)));
    if (alone.isValid() && alone.elementExists(CardElement(back)))
      publish(faces_, back, CardFace(alone, back, sizes_.face, sizes_.dpr));
  }
  StopWorkersAtExit(0);
  StartupStage("cards:back");
  {
    std::unique_lock lock(mutex_);
    drawn_.wait(lock, [&] { return goOn_ || stop_; });
    if (stop_) return;
  }
  auto deck = std::make_unique<QSvgRenderer>(DeckFile());
  StartupStage("deck");
  if (!faces_[static_cast<std::size_t>(back)].drawn)
    publish(faces_, back, CardFace(*deck, back, sizes_.face, sizes_.dpr));
  for (int code = 0; code < back && !stop_; ++code) {
    publish(faces_, code, CardFace(*deck, code, sizes_.face, sizes_.dpr));
    if (code == 0) StopWorkersAtExit(1);
  }
  for (int code = 0; code < sizes_.smalls && !stop_; ++code)
    publish(small_, code, SmallCardFace(*deck, code, sizes_.small, sizes_.dpr));
  if (stop_) {
    // Stopped at exit: the deck is left as it is, since the statics its destruction needs
    // may be gone already.
    DeckLeftAtExit() = deck.release();
    return;
  }
  // The parsed deck is a few megabytes of small blocks: hand them back to the system.
  deck.reset();
  malloc_trim(0);
  const std::lock_guard lock(mutex_);
  finished_ = true;
  drawn_.notify_all();
  StartupStage("cards:all");
}

QPixmap CardFaces::Take(std::vector<Slot>& store, int code) {
  std::unique_lock lock(mutex_);
  Slot& slot = store.at(static_cast<std::size_t>(code));
  if (!slot.drawn) {
    // Wanted before the first frame let the worker go on: it goes on now.
    goOn_ = true;
    drawn_.notify_all();
    drawn_.wait(lock, [&] { return slot.drawn || stop_; });
  }
  if (slot.pixmap.isNull() && !slot.image.isNull()) slot.pixmap = QPixmap::fromImage(std::move(slot.image));
  return slot.pixmap;
}

QPixmap CardFaces::Face(int code) { return Take(faces_, code); }
QPixmap CardFaces::Small(int code) { return Take(small_, code); }

void CardFaces::WaitAll() {
  Continue();
  std::unique_lock lock(mutex_);
  drawn_.wait(lock, [&] { return finished_ || stop_; });
}

bool CardFaces::Finished() {
  const std::lock_guard lock(mutex_);
  return finished_ || stop_;
}

QImage CardFace(QSvgRenderer& deck, int code, QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  // The deck's cards are a little wider than these: the face is drawn to fill the size
  // exactly, narrowing it by a tenth, which keeps the corner indexes large.
  deck.render(&p, CardElement(code), QRectF(QPointF(0, 0), QSizeF(size)));
  p.end();
  return img;
}

QImage SmallCardFace(QSvgRenderer& deck, int code, QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  const QString id = CardElement(code);
  const QRectF bounds = deck.boundsOnElement(id);
  const qreal scale = std::min(size.width() / bounds.width(), size.height() / bounds.height());
  const QSizeF face(bounds.width() * scale, bounds.height() * scale);
  const QRectF target(QPointF((size.width() - face.width()) / 2, (size.height() - face.height()) / 2), face);
  deck.render(&p, id, target);
  p.end();
  return img;
}

}  // namespace pics
