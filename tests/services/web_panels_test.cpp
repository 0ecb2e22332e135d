// The web panels: the shipped pages without a publisher, the publisher's pages from a
// loopback server when TALVERO_PUBLISHER names it, a short notice when the server does not
// answer, and the no-connection notice that only the player closes.
#include <QApplication>
#include <QResizeEvent>
#include <QTcpServer>
#include <QTcpSocket>

#include "services/web.h"
#include "tests/services/services_helpers.h"
#include "tests/support/harness.h"

namespace {

// A loopback HTTP server that answers every GET with a page naming the path asked, and
// records the paths.
class PageServer {
 public:
  PageServer(const PageServer&) = delete;
  PageServer& operator=(const PageServer&) = delete;
  PageServer() {
    // The server's socket needs the application's event dispatcher, made before it listens.
    TestApp();
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, [this] {
      while (QTcpSocket* s = server_.nextPendingConnection()) {
        QObject::connect(s, &QTcpSocket::readyRead, s, [this, s] {
          const QByteArray request = s->readAll();
          const QByteArray path = request.split(' ').value(1);
          paths << QString::fromLatin1(path);
          const QByteArray body = "<html><body><p>Page " + path + " of the publisher</p></body></html>";
          s->write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\nContent-Length: " +
                   QByteArray::number(body.size()) + "\r\n\r\n" + body);
          s->disconnectFromHost();
        });
        QObject::connect(s, &QTcpSocket::disconnected, s, &QObject::deleteLater);
      }
    });
  }
  QString Address() const { return QStringLiteral("http://127.0.0.1:%1").arg(server_.serverPort()); }
  QStringList paths;

 private:
  QTcpServer server_;
};

// Sets an environment variable for one test.
class Publisher {
 public:
  explicit Publisher(const QString& value) { qputenv("TALVERO_PUBLISHER", value.toUtf8()); }
  ~Publisher() { qunsetenv("TALVERO_PUBLISHER"); }
};

WebPanel& Web(Control* c) { return *c->findChild<WebPanel*>(); }

TEST(WebPanels, WithoutAPublisherTheShippedPagesShowAndNothingIsContacted) {
  qunsetenv("TALVERO_PUBLISHER");
  Harness h;
  JeuPoker& f = *h.form;
  EXPECT_EQ(Web(f.Pub0Web).Address(), h.dir.filePath("pub0.htm"));
  EXPECT_EQ(Web(f.Pub1Web).Address(), h.dir.filePath("pub1.htm"));
  EXPECT_TRUE(Web(f.Pub0Web).Text().contains("TALVERO"));
  EXPECT_TRUE(Web(f.Pub1Web).Text().contains("Dealer's tips"));
  EXPECT_EQ(h.Drive1("get Pub0Web.Address"), "Pub0Web.Address=" + h.dir.filePath("pub0.htm"));
  EXPECT_TRUE(h.Drive1("get Pub1Web.Text").startsWith("Pub1Web.Text=TALVERO\\n"));
}

TEST(WebPanels, APublisherOnTheLoopbackServesBothPanels) {
  PageServer server;
  Publisher publisher(server.Address() + "/");
  Harness h;
  // The replies come while the event loop runs; a loaded machine may take a while.
  for (int i = 0; i < 200 && (Web(h.form->Pub0Web).Text().isEmpty() || Web(h.form->Pub1Web).Text().isEmpty()); ++i)
    h.Drive({"wait 50"});
  EXPECT_EQ(h.Drive1("get Pub0Web.Address"), "Pub0Web.Address=" + server.Address() + "/pub0.htm");
  EXPECT_EQ(h.Drive1("get Pub0Web.Text").trimmed(), "Pub0Web.Text=Page /pub0.htm of the publisher");
  EXPECT_EQ(h.Drive1("get Pub1Web.Text").trimmed(), "Pub1Web.Text=Page /pub1.htm of the publisher");
  server.paths.sort();
  EXPECT_EQ(server.paths, (QStringList{"/pub0.htm", "/pub1.htm"}));
}

TEST(WebPanels, AServerThatDoesNotAnswerLeavesANoticeAndTheGameGoesOn) {
  // A port that nobody listens on.
  quint16 port = 0;
  {
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    port = probe.serverPort();
  }
  Publisher publisher(QStringLiteral("http://127.0.0.1:%1").arg(port));
  Harness h;
  for (int i = 0; i < 200 && Web(h.form->Pub0Web).Text().isEmpty(); ++i) h.Drive({"wait 50"});
  EXPECT_EQ(Web(h.form->Pub0Web).Text(), WebPanel::Notice());
  EXPECT_TRUE(h.Drive({"draw 0 1 2 3 4", "click Jouer"}).isEmpty());
  EXPECT_EQ(h.form->NbTirées, 5);
}

TEST(WebPanels, TheNoticeComesWithoutAConnectionAndStaysUntilClosed) {
  Harness h;
  JeuPoker& f = *h.form;
  EXPECT_FALSE(f.NonConnectéPic->Visible());
  EXPECT_EQ(f.NonConnectéTimer->Interval(), 20000);
  h.Drive({"tick NonConnectéTimer"});
  EXPECT_FALSE(f.NonConnectéPic->Visible());  // connected: nothing happens
  h.Drive({"net off", "tick NonConnectéTimer"});
  EXPECT_TRUE(f.NonConnectéPic->Visible());
  EXPECT_EQ(h.Drive1("get LogoWeb.Address"), "LogoWeb.Address=" + h.dir.filePath("logoalb200.htm"));
  EXPECT_EQ(f.NonConnectéLbl->Caption(),
            QString::fromUtf8("Vous devez être connecté à internet pour utiliser ce logiciel"));
  // The connection comes back: the notice stays until OK.
  h.Drive({"net on", "tick NonConnectéTimer"});
  EXPECT_TRUE(f.NonConnectéPic->Visible());
  h.Drive({"click NonConnectéCmd"});
  EXPECT_FALSE(f.NonConnectéPic->Visible());
  // Still off line: a closed notice comes back at the next tick.
  h.Drive({"net off", "tick NonConnectéTimer"});
  EXPECT_TRUE(f.NonConnectéPic->Visible());
  EXPECT_TRUE(f.NonConnectéTimer->Enabled());
}

// At any scale a page is laid out at the width it has at scale 1, so its lines break at the
// same words, and it is drawn larger.
TEST(WebPanels, AtAnyScaleAPageWrapsAtItsWidthOfScaleOne) {
  qunsetenv("TALVERO_PUBLISHER");
  Harness h;
  JeuPoker& f = *h.form;
  const std::vector<Control*> hosts = {f.Pub0Web, f.Pub1Web, f.LogoWeb};
  std::vector<int> widths;
  std::vector<QSizeF> pages;
  for (Control* c : hosts) {
    widths.push_back(c->LogicalSize().width());
    pages.push_back(Web(c).document()->size());
    // At scale 1 a page shown fills its panel's width, with no scroll bar.
    if (Web(c).isVisibleTo(&f)) {
      EXPECT_EQ(Web(c).viewport()->width(), widths.back());
    }
  }
  for (const QSize size : {QSize(2000, 1000), QSize(1536, 1152), QSize(1333, 1000), QSize(1100, 1500)}) {
    const QSize old = f.size();
    f.resize(size);
    QResizeEvent resized(size, old);
    QApplication::sendEvent(&f, &resized);
    ASSERT_GT(f.TableScale(), 1) << size.width();
    for (std::size_t i = 0; i < hosts.size(); ++i) {
      EXPECT_EQ(Web(hosts[i]).lineWrapMode(), QTextEdit::FixedPixelWidth);
      EXPECT_EQ(Web(hosts[i]).lineWrapColumnOrWidth(), widths[i])
          << hosts[i]->FullName().toStdString() << " at " << f.TableScale();
      // The same lines, so the same page size in logical units.
      if (Web(hosts[i]).isVisibleTo(&f)) {
        EXPECT_EQ(Web(hosts[i]).document()->size(), pages[i]) << hosts[i]->FullName().toStdString();
      }
    }
  }
}

}  // namespace
