// The table on screen: its scale as the window is resized or goes full screen, and the
// pictures drawn again for a new scale in the background while the old ones are shown scaled.
#include "interface/table_scale.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QProcessEnvironment>
#include <QResizeEvent>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "interface/pictures_art.h"
#include "services/web.h"

namespace {
bool SameRatio(qreal a, qreal b) { return qAbs(a - b) < 1e-6; }
}  // namespace

namespace table {

double FitScale(QSize area) {
  const double across = area.width() / static_cast<double>(kLogicalSize.width());
  const double down = area.height() / static_cast<double>(kLogicalSize.height());
  return std::clamp(std::min(across, down), kMinScale, kMaxScale);
}

std::optional<double> ParseScale(const QString& text) {
  bool ok = false;
  const double s = text.trimmed().toDouble(&ok);
  if (!ok || !std::isfinite(s) || s < kMinScale || s > kMaxScale) return std::nullopt;
  return s;
}

double RequestedScale(const QStringList& arguments) {
  auto take = [](const QString& text, const char* where) {
    if (const auto s = ParseScale(text)) return *s;
    std::fprintf(stderr, "talvero: %s \"%s\" is not a scale from 1 to 4; the table fits the screen\n", where,
                 qPrintable(text));
    return 0.0;
  };
  const int at = static_cast<int>(arguments.indexOf(QStringLiteral("--scale")));
  if (at >= 0) {
    if (at + 1 < arguments.size()) return take(arguments[at + 1], "--scale");
    std::fprintf(stderr, "talvero: --scale takes a number from 1 to 4; the table fits the screen\n");
    return 0;
  }
  const QString env = qEnvironmentVariable("TALVERO_SCALE");
  if (!env.isEmpty()) return take(env, "TALVERO_SCALE");
  return 0;
}

QSize TableSize(double s) {
  return QSize(static_cast<int>(std::lround(kLogicalSize.width() * s)),
               static_cast<int>(std::lround(kLogicalSize.height() * s)));
}

QRect TableRect(QSize window, double s) {
  const QSize size = TableSize(s);
  return QRect(QPoint((window.width() - size.width()) / 2, (window.height() - size.height()) / 2), size);
}

QString ScaleText(double s) {
  QString text = QString::number(s, 'f', 4);
  while (text.endsWith('0')) text.chop(1);
  if (text.endsWith('.')) text.chop(1);
  return text;
}

}  // namespace table

std::vector<Control*> JeuPoker::TableControls() const {
  std::vector<Control*> out;
  for (const auto& list : controlsByName_)
    for (Control* c : list)
      if (c && table_->isAncestorOf(c)) out.push_back(c);
  return out;
}

QRect JeuPoker::TableGeometry() const { return table_->geometry(); }

qreal JeuPoker::PictureRatio() const { return scale_ * devicePixelRatioF(); }

void JeuPoker::ApplyTableScale(double s) {
  const bool changed = s != scale_;
  scale_ = s;
  table_->setGeometry(table::TableRect(size(), s));
  if (!changed) return;
  ScaleTableContents();
  // Until the pictures are drawn for the new scale, the last ones are shown scaled.
  if (renderDelay_) renderDelay_->start();
}

void JeuPoker::ScaleTableContents() {
  for (Control* c : TableControls()) c->SetScale(scale_);
  for (WebPanel* web : table_->findChildren<WebPanel*>()) web->SetScale(scale_);
  ScaleCoachWindow();
}

void JeuPoker::resizeEvent(QResizeEvent* e) {
  QWidget::resizeEvent(e);
  if (!table_) return;
  // The scale in force stays while its table fills the window across or down: the window was
  // sized for it, and rounding its edges must not change it.
  const QRect kept = table::TableRect(e->size(), scale_);
  const bool fills = kept.left() >= 0 && kept.top() >= 0 && (kept.left() == 0 || kept.top() == 0);
  ApplyTableScale(fills ? scale_ : table::FitScale(e->size()));
}

bool JeuPoker::event(QEvent* e) {
  // On a screen of another density the pictures are drawn again for it.
  if (e->type() == QEvent::ScreenChangeInternal && renderDelay_) renderDelay_->start();
  return QWidget::event(e);
}

void JeuPoker::ToggleFullScreen() {
  if (isFullScreen())
    showNormal();
  else
    showFullScreen();
}

std::shared_ptr<pics::CardFaces> JeuPoker::FacesFor(qreal ratio) {
  if (cardFaces_ && SameRatio(cardFaces_->sizes().dpr, ratio)) return cardFaces_;
  pics::CardFaces::Sizes sizes = faceSizes_;
  const bool start = SameRatio(sizes.dpr, ratio);
  sizes.dpr = ratio;
  // The faces of the start are shared with every form of the process; those of another scale
  // are this form's alone, and go when the scale changes again.
  cardFaces_ = start ? pics::CardFaces::For(sizes) : std::make_shared<pics::CardFaces>(sizes);
  if (!start || firstFrameSeen_) cardFaces_->Continue();
  return cardFaces_;
}

void JeuPoker::ShowCardPointer(qreal ratio) {
  // The pointer's picture is tagged with the screen's density alone, so that it shows at the
  // table's scale; its tip is at (4, 1) of its logical size.
  QImage image = pics::CardPointer(ratio);
  const qreal dpr = devicePixelRatioF();
  image.setDevicePixelRatio(dpr);
  Control::SetCardPointer(QPixmap::fromImage(std::move(image)),
                          QPoint(qRound(4 * ratio / dpr), qRound(1 * ratio / dpr)));
  for (Control* c : TableControls())
    if (c->MousePointer() == kCarte) c->RefreshCursor();
}

void JeuPoker::RenderPictures() {
  if (rendering_.valid()) return renderPoll_->start();  // the poll starts the next one
  const qreal ratio = PictureRatio();
  std::vector<const StoredPicture*> painted;
  for (const auto& p : pictures_)
    if (p->Drawn() && p->Renders() && !SameRatio(p->Ratio(), ratio)) painted.push_back(p.get());
  FacesFor(ratio);
  ShowCardPointer(ratio);
  renderingRatio_ = ratio;
  renderingPictures_ = painted;
  rendering_ = std::async(std::launch::async, [painted, ratio] {
    std::vector<QImage> images;
    images.reserve(painted.size());
    for (const StoredPicture* p : painted) images.push_back(p->Render(ratio));
    return images;
  });
  renderPoll_->start();
}

void JeuPoker::AdoptPictures() {
  const qreal ratio = PictureRatio();
  bool adopted = false;
  if (rendering_.valid()) {
    if (rendering_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return;
    std::vector<QImage> images = rendering_.get();
    if (SameRatio(renderingRatio_, ratio)) {
      for (std::size_t i = 0; i < images.size(); ++i)
        renderingPictures_[i]->Adopt(ratio, QPixmap::fromImage(std::move(images[i])));
      adopted = true;
    }
    renderingPictures_.clear();
    if (!SameRatio(renderingRatio_, ratio)) return RenderPictures();
  }
  if (cardFaces_ && SameRatio(cardFaces_->sizes().dpr, ratio) && cardFaces_->Finished()) {
    // Every face is drawn: the card pictures shown take theirs.
    for (const auto& p : pictures_)
      if (p->Drawn() && !p->Renders() && !SameRatio(p->Ratio(), ratio)) p->Adopt(ratio, p->Draw(ratio));
    adopted = true;
    renderPoll_->stop();
  }
  if (adopted) table_->update();
}

void JeuPoker::WaitForPictures() {
  if (renderDelay_->isActive()) {
    renderDelay_->stop();
    RenderPictures();
  }
  while (renderPoll_->isActive()) {
    if (rendering_.valid()) rendering_.wait();
    if (cardFaces_) cardFaces_->WaitAll();
    AdoptPictures();
  }
}
