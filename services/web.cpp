// The web panels (Pub0Web, Pub1Web, LogoWeb) and the no-connection notice.
#include "services/web.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QScrollBar>
#include <QTextFrame>
#include <QUrl>
#include <cmath>

#include "interface/JeuPoker.h"
#include "services/network.h"
#include "services/platform.h"

namespace {
// A reply slower than this is abandoned for the notice.
constexpr int kDélaiMs = 8000;
}  // namespace

WebPanel::WebPanel(QWidget* host) : QTextBrowser(host) {
  setOpenLinks(false);
  setOpenExternalLinks(false);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setGeometry(host->rect());
  host->installEventFilter(this);
}

bool WebPanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parent() && event->type() == QEvent::Resize) FollowHost();
  return QTextBrowser::eventFilter(watched, event);
}

void WebPanel::SetScale(double s) {
  scale_ = s;
  // The width first, so that the page is laid out once, at that width.
  FollowHost();
  setLineWrapMode(s == 1 ? QTextEdit::WidgetWidth : QTextEdit::FixedPixelWidth);
}

void WebPanel::FollowHost() {
  setGeometry(parentWidget()->rect());
  if (scale_ != 1) {
    // The page's width at scale 1: the panel's logical width, less the scroll bar when shown.
    const QScrollBar* bar = verticalScrollBar();
    const int barWidth = bar->isVisibleTo(this) ? bar->sizeHint().width() : 0;
    setLineWrapColumnOrWidth(static_cast<int>(std::lround(width() / scale_)) - barWidth);
  }
  viewport()->update();
}

void WebPanel::paintEvent(QPaintEvent* event) {
  if (scale_ == 1) return QTextBrowser::paintEvent(event);
  // The page as laid out at the logical width, drawn larger: its text stays sharp.
  QPainter p(viewport());
  p.setRenderHint(QPainter::TextAntialiasing);
  // The page's own background (the body's colour) fills the whole panel.
  const QBrush ground = document()->rootFrame()->frameFormat().background();
  p.fillRect(viewport()->rect(), ground.style() != Qt::NoBrush ? ground : palette().base());
  p.scale(scale_, scale_);
  p.translate(0, -verticalScrollBar()->value() / scale_);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette = palette();
  document()->documentLayout()->draw(&p, context);
}

QString WebPanel::Notice() {
  return QString::fromUtf8("Page indisponible pour le moment.\nThe page cannot be shown at the moment.");
}

void WebPanel::Show(const QByteArray& html) {
  if (html.isEmpty()) {
    setPlainText(Notice());
    return;
  }
  setHtml(QString::fromUtf8(html));
}

void WebPanel::Navigate(const QString& address) {
  address_ = address;
  const int navigation = ++navigations_;
  if (pending_) {
    QObject* old = pending_;
    pending_ = nullptr;
    if (NetworkAccess* network = Network()) network->Cancel(old);
  }
  const QUrl url(address);
  if (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) {
    setPlainText(QString());
    NetworkAccess* network = Network();
    if (!network) {
      Show(QByteArray());
      return;
    }
    pending_ = network->Get(address, kDélaiMs, this, [this, navigation](const QByteArray& page) {
      if (navigation != navigations_) return;  // a later navigation took the panel
      pending_ = nullptr;
      Show(page);
    });
    return;
  }
  QFile file(address);
  setSearchPaths({QFileInfo(address).absolutePath()});
  Show(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
}

// ---- The form's side ------------------------------------------------------------------

QString JeuPoker::AdresseWeb(const QString& page) const {
  QString publisher = qEnvironmentVariable("TALVERO_PUBLISHER");
  if (publisher.isEmpty()) return QDir(dataDir_).filePath(page);
  while (publisher.endsWith('/')) publisher.chop(1);
  return publisher + '/' + page;
}

bool JeuPoker::NetworkStatus() { return Sys().Connected(); }

void JeuPoker::NonConnectéTimer_Timer() {
  if (NetworkStatus()) return;
  if (auto* web = LogoWeb->findChild<WebPanel*>()) web->Navigate(QDir(dataDir_).filePath("logoalb200.htm"));
  NonConnectéPic->SetVisible(true);
}

void JeuPoker::NonConnectéCmd_Click() { NonConnectéPic->SetVisible(false); }
