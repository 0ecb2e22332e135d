// The network library: Qt Network behind the game's NetworkAccess, loaded when first needed.
#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkInformation>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include "services/network.h"

namespace {
class QtNetworkAccess final : public NetworkAccess {
 public:
  QObject* Get(const QString& url, int timeoutMs, QObject* context,
               std::function<void(const QByteArray&)> done) override {
    QNetworkRequest request{QUrl(url)};
    request.setTransferTimeout(timeoutMs);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    QNetworkReply* reply = Manager().get(request);
    QObject::connect(reply, &QNetworkReply::finished, context, [reply, done = std::move(done)] {
      reply->deleteLater();
      const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
      done(reply->error() == QNetworkReply::NoError && status == 200 ? reply->readAll() : QByteArray());
    });
    return reply;
  }

  void Cancel(QObject* fetch) override {
    if (auto* reply = qobject_cast<QNetworkReply*>(fetch)) reply->abort();
  }

  bool Connected() override {
    // The system's reachability, loaded at the first question; unknown counts as connected.
    static const bool loaded = QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability);
    QNetworkInformation* info = loaded ? QNetworkInformation::instance() : nullptr;
    if (!info) return true;
    const auto r = info->reachability();
    return r == QNetworkInformation::Reachability::Online || r == QNetworkInformation::Reachability::Unknown;
  }

 private:
  static QNetworkAccessManager& Manager() {
    static QNetworkAccessManager* manager = new QNetworkAccessManager(qApp);
    return *manager;
  }
};
}  // namespace

extern "C" Q_DECL_EXPORT NetworkAccess* TalveroNetworkAccess() {
  static QtNetworkAccess access;
  return &access;
}
