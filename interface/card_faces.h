// The card faces: every card drawn from the SVG deck, once per process, on a worker thread.
//
// Terms. A card's `code` is 0..51 (13 x suit + rank, suits clubs, diamonds, hearts, spades,
// ranks two..ace), 52 and 53 the jokers, 54 the back. A `face` is the full-size picture of the
// classic game, filling its size exactly; a `small` one is the grid's, keeping the card's own
// proportions, centred in its size. Both are rendered at `dpr` device pixels per logical pixel.
//
// Cache. CardFaces::For keeps one CardFaces per Sizes (face size and count, small size and
// count, dpr) for the life of the process: the game's one form and the many forms of the tests
// and the benchmarks share the faces of their sizes. Inside, each size has a slot per code:
// the image the worker drew, and the pixmap made from it at its first use.
//
// Threads. Each CardFaces has one worker thread. It draws the back first, from a document of
// the back alone, since the first frame shows only backs; then it waits for Continue (the
// first frame is out, or a face is wanted) before it parses the whole deck and draws the faces
// in code order, then the small ones, and drops the parsed deck so that it does not stay in
// memory. The worker makes only QImages; the GUI thread takes the faces as QPixmaps, and
// asking for one the worker has not reached yet waits for it. A mutex guards the slots.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class QSvgRenderer;

namespace pics {

// Card `code` at full size, filling `size` exactly.
QImage CardFace(QSvgRenderer& deck, int code, QSize size, qreal dpr);
// The smaller face of the grid: the card keeps its own proportions and is centred in `size`.
QImage SmallCardFace(QSvgRenderer& deck, int code, QSize size, qreal dpr);

// Every card face in two sizes (codes 0..faces-1 full size, 0..smalls-1 small).
class CardFaces {
 public:
  struct Sizes {
    QSize face;
    int faces = 0;
    QSize small;
    int smalls = 0;
    qreal dpr = 1;
    bool operator==(const Sizes&) const = default;
  };
  // The process's faces of these sizes, their rendering started on first request.
  static std::shared_ptr<CardFaces> For(const Sizes& sizes);
  explicit CardFaces(const Sizes& sizes);
  ~CardFaces();
  CardFaces(const CardFaces&) = delete;
  CardFaces& operator=(const CardFaces&) = delete;

  const Sizes& sizes() const { return sizes_; }
  QPixmap Face(int code);
  QPixmap Small(int code);
  // The worker draws the back, then waits to be told to go on (the first frame is out, or a
  // face is wanted) before it parses the deck for the faces.
  void Continue();
  // Waits until every face is drawn and the deck is released.
  void WaitAll();
  // Whether every face is drawn (or the worker was stopped), without waiting.
  bool Finished();
  // Stops the worker after the face it is drawing, and waits for it.
  void Stop();
  // Stops every worker of the process. Called before a program returns from main, so that no
  // worker draws while the process's statics are destroyed.
  static void StopAll();

 private:
  struct Slot {
    QImage image;    // from the worker
    QPixmap pixmap;  // made from the image on the GUI thread, at first use
    bool drawn = false;
  };
  QPixmap Take(std::vector<Slot>& store, int code);
  void Render();

  Sizes sizes_;
  std::vector<Slot> faces_, small_;
  bool finished_ = false;
  bool goOn_ = false;
  std::atomic<bool> stop_ = false;
  std::mutex mutex_;
  std::condition_variable drawn_;
  std::thread worker_;
};

}  // namespace pics
