// The game's artwork: card faces from the SVG deck and everything else drawn with QPainter.
//
// Every function returns a pixmap of the given logical size, rendered at `dpr` device pixels
// per logical pixel and tagged with that ratio, so that it stays sharp on high-density screens.
#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class QSvgRenderer;

namespace pics {

// How long the last BuildPictures took, in seconds of the clock and of the thread's
// processor time (for the benchmark).
struct BuildTime {
  double wall = 0;
  double cpu = 0;
};
BuildTime LastBuildTime();
void SetLastBuildTime(BuildTime t);
// The calling thread's processor time, in seconds.
double ThreadCpuSeconds();

// Card `code` (0..51 by 13 x suit + rank, 52 and 53 the jokers, 54 the back) at full size,
// filling `size` exactly.
QImage CardFace(QSvgRenderer& deck, int code, QSize size, qreal dpr);
// The smaller face of the grid: the card keeps its own proportions and is centred in `size`.
QImage SmallCardFace(QSvgRenderer& deck, int code, QSize size, qreal dpr);
// The deck's file.
QString DeckFile();
// A document of the deck's file holding only the element `id` (with the groups around it and
// what it refers to), for drawing that card without parsing the whole deck. Empty when the
// file or the element cannot be found.
QByteArray DeckElementDocument(const QString& deckFile, const QString& id);
// The deck's element id of card `code`.
QString CardElement(int code);

// Every card face in two sizes (codes 0..faces-1 full size, 0..smalls-1 small), rendered once
// per process on a worker thread: the back first, since the first frame shows only backs,
// then the faces in code order. The parsed deck is dropped after the last face, so it does
// not stay in memory. Faces are handed out on the GUI thread; asking for one the worker has
// not reached yet waits for it.
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

  QPixmap Face(int code);
  QPixmap Small(int code);
  // The worker draws the back, then waits to be told to go on (the first frame is out, or a
  // face is wanted) before it parses the deck for the faces.
  void Continue();
  // Waits until every face is drawn and the deck is released.
  void WaitAll();
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

// Digit pictures of the amount displays.
enum class DigitColour { Red, Blue, Grey };
constexpr QColor kDisplayWindow{12, 12, 14};  // the dark window the digits stand in
QPixmap Digit(int digit, DigitColour colour, QSize size, qreal dpr);

// The face of the PLAY button.
QPixmap PlayFace(const QString& word, bool pressed, QSize size, qreal dpr);

// The title of an amount row: the word in the row's accent colour on a clear ground.
QPixmap RowTitle(const QString& text, QColor colour, QSize size, qreal dpr);
// The background of an amount row; `windowLeft`..`windowRight` bound the digit window.
QPixmap RowBackground(QColor accent, int windowLeft, int windowRight, int windowTop, int windowBottom, QSize size,
                      qreal dpr);

// The game's name in the title bar, in one of its two blinking forms (1 or 2).
QPixmap GameTitle(int form, QSize size, qreal dpr);

// Music on and off.
QPixmap MusicIcon(bool on, QSize size, qreal dpr);
// The advice marker (a lamp) and the hand of manual selection.
QPixmap AdviceIcon(QSize size, qreal dpr);
QPixmap HandIcon(QSize size, qreal dpr);
// The mouse pointer over a card that can be acted on; its tip is at (4, 1).
QPixmap CardPointer(qreal dpr);

// The two game choices: five cards in a row and a 5 by 5 grid.
QPixmap ClassicGameIcon(QSize size, qreal dpr);
QPixmap GridGameIcon(QSize size, qreal dpr);

// Leaving the game, and the two languages as flags.
QPixmap PowerIcon(QSize size, qreal dpr);
QPixmap FlagIcon(bool english, QSize size, qreal dpr);

}  // namespace pics
