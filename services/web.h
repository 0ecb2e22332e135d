// A web panel: a light HTML view that navigates to a page of the publisher's server or to a
// page of the program directory. It never follows links and never loads anything but the
// page it is sent to; a server that does not answer leaves a short notice, never a wait.
#pragma once

#include <QPointer>
#include <QTextBrowser>

class WebPanel : public QTextBrowser {
 public:
  // Fills `host` and follows its size.
  explicit WebPanel(QWidget* host);

  // An http(s) address, or the path of a local file.
  void Navigate(const QString& address);
  // The address last navigated to.
  const QString& Address() const { return address_; }
  // The page's text as shown.
  QString Text() const { return toPlainText(); }

  // The table's scale: the page is laid out at the panel's logical width and drawn that many
  // times larger.
  void SetScale(double s);

  // The notice shown when a page cannot be had.
  static QString Notice();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Show(const QByteArray& html);

  QString address_;
  void FollowHost();
  double scale_ = 1;
  QPointer<QObject> pending_;  // the fetch in progress
  int navigations_ = 0;        // a fetch's reply shows only if no navigation came after it
};
