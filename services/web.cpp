// The web panels (Pub0Web, Pub1Web, LogoWeb) and the no-connection notice.
#include "services/web.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include "interface/JeuPoker.h"
#include "services/platform.h"

namespace {
// A reply slower than this is abandoned for the notice.
constexpr int kDélaiMs = 8000;

QNetworkAccessManager& Network() {
  static QNetworkAccessManager* manager = new QNetworkAccessManager(qApp);
  return *manager;
}
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
  if (watched == parent() && event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QTextBrowser::eventFilter(watched, event);
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
  if (pending_) {
    QNetworkReply* old = pending_;
    pending_ = nullptr;
    old->abort();
  }
  const QUrl url(address);
  if (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) {
    setPlainText(QString());
    QNetworkRequest request(url);
    request.setTransferTimeout(kDélaiMs);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    QNetworkReply* reply = Network().get(request);
    pending_ = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
      reply->deleteLater();
      if (pending_ != reply) return;  // a later navigation took the panel
      const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
      Show(reply->error() == QNetworkReply::NoError && status == 200 ? reply->readAll() : QByteArray());
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
