// The pictures of the form: the stores off the screen (card faces in two sizes, digits, the
// two-language titles and PLAY faces, the title, the music icons) and the pictures that
// stand on the screen from the start (row backgrounds and titles, option icons, the choice
// of game, the card pointer).
#include <QGuiApplication>
#include <QPainter>

#include "interface/JeuPoker.h"
#include "interface/pictures_art.h"
#include "services/measurement.h"

Picture JeuPoker::StorePicture(const QString& name, std::function<QImage(qreal)> render) {
  auto draw = [render](qreal ratio) { return QPixmap::fromImage(render(ratio)); };
  pictures_.push_back(std::make_unique<StoredPicture>(name, PictureRatio(), draw, std::move(render)));
  return pictures_.back().get();
}

Picture JeuPoker::StoreCardPicture(const QString& name, int code, bool small) {
  // The faces come from the card worker of the ratio asked for.
  auto draw = [this, code, small](qreal ratio) {
    const std::shared_ptr<pics::CardFaces> faces = FacesFor(ratio);
    return small ? faces->Small(code) : faces->Face(code);
  };
  pictures_.push_back(std::make_unique<StoredPicture>(name, PictureRatio(), draw));
  return pictures_.back().get();
}

void JeuPoker::BuildPictures() {
  const PicturesBuildTimer timer;
  // The cards render on a worker thread, started before the controls were built; the other
  // pictures are drawn when first shown, at the table's scale times the screen's density.
  // A control gets a picture of its own, named after it, drawn when it is first shown: the
  // first frame waits only for the pictures it shows.
  // The drawing gets the control's logical size and the ratio; it may run on any thread.
  auto own = [&](Control& c, std::function<QImage(QSize, qreal)> draw) {
    Picture p = StorePicture(c.FullName(),
                             [draw = std::move(draw), size = c.LogicalSize()](qreal dpr) { return draw(size, dpr); });
    c.SetPicture(p);
    return p;
  };

  // Digits: red for the winnings, blue for the credit, grey for the bet and the level.
  for (int i = ChiffresModèle.Low(); i <= ChiffresModèle.High(); ++i) {
    const auto colour = i < 10 ? pics::DigitColour::Red : i < 20 ? pics::DigitColour::Blue : pics::DigitColour::Grey;
    own(ChiffresModèle(i), [=](QSize size, qreal dpr) { return pics::Digit(i % 10, colour, size, dpr); });
  }

  // The PLAY face: 1 and 3 French, 2 and 4 English; 1 and 2 released, 3 and 4 pressed.
  for (int i = 1; i <= 4; ++i) {
    const bool english = i % 2 == 0;
    own(JouerImage(i), [=](QSize size, qreal dpr) {
      return pics::PlayFace(english ? QStringLiteral("PLAY") : QStringLiteral("JOUER"), i >= 3, size, dpr);
    });
  }

  // The amount rows: a background each, with its title in the colour of its digits.
  const QColor blue(64, 150, 255), red(255, 64, 52), grey(200, 200, 204);
  const int windowTop = 19, windowBottom = 46;  // around the digits, 21..43 in the row
  own(*ImageCrédit,
      [=](QSize size, qreal dpr) { return pics::RowBackground(blue, 4, 134, windowTop, windowBottom, size, dpr); });
  own(*ImageGains,
      [=](QSize size, qreal dpr) { return pics::RowBackground(red, 4, 134, windowTop, windowBottom, size, dpr); });
  // The bet and level rows keep room for their minus and plus buttons.
  own(*ImageMises,
      [=](QSize size, qreal dpr) { return pics::RowBackground(grey, 35, 103, windowTop, windowBottom, size, dpr); });
  own(*ImageUnàDouze,
      [=](QSize size, qreal dpr) { return pics::RowBackground(grey, 35, 103, windowTop, windowBottom, size, dpr); });
  own(*CréditImage, [=](QSize size, qreal dpr) { return pics::RowTitle(QStringLiteral("CREDIT"), blue, size, dpr); });
  own(GainsImage(1), [=](QSize size, qreal dpr) { return pics::RowTitle(QStringLiteral("GAINS"), red, size, dpr); });
  own(GainsImage(2), [=](QSize size, qreal dpr) { return pics::RowTitle(QStringLiteral("WIN"), red, size, dpr); });
  own(MisesImage(1), [=](QSize size, qreal dpr) { return pics::RowTitle(QStringLiteral("MISE"), grey, size, dpr); });
  own(MisesImage(2), [=](QSize size, qreal dpr) { return pics::RowTitle(QStringLiteral("BET"), grey, size, dpr); });
  own(*UnàDouze,
      [=](QSize size, qreal dpr) { return pics::RowTitle(QString::fromUtf8("NIVEAU \u00B7 LEVEL"), grey, size, dpr); });

  // The title, in its two blinking forms.
  for (int i = 1; i <= 2; ++i) own(TitreImage(i), [=](QSize size, qreal dpr) { return pics::GameTitle(i, size, dpr); });

  // Music on (1) and off (2).
  for (int i = 1; i <= 2; ++i)
    own(SSMusic(i), [=](QSize size, qreal dpr) { return pics::MusicIcon(i == 1, size, dpr); });

  // The form starts in French, with the music on.
  GainsImage(0).SetPicture(GainsImage(1).GetPicture());
  MisesImage(0).SetPicture(MisesImage(1).GetPicture());
  JouerImage(0).SetPicture(JouerImage(1).GetPicture());
  TitreImage(0).SetPicture(TitreImage(1).GetPicture());
  SSMusic(0).SetPicture(SSMusic(1).GetPicture());

  // Automatic and manual selection: a lamp that advises and a hand. The markers above
  // the cards show the picture of the selected option, automatic at the start. The icon
  // takes the place of the option's letter.
  const QSize iconSize(32, 32);
  own(*ParesseOui, [=](QSize, qreal dpr) { return pics::AdviceIcon(iconSize, dpr); });
  own(*ParesseNon, [=](QSize, qreal dpr) { return pics::HandIcon(iconSize, dpr); });
  ParesseOui->SetCaption(QString());
  ParesseNon->SetCaption(QString());
  for (int i = ImageConseils.Low(); i <= ImageConseils.High(); ++i)
    ImageConseils(i).SetPicture(ParesseOui->GetPicture());
  own(*Image6, [=](QSize size, qreal dpr) { return pics::AdviceIcon(size, dpr); });

  // The choice of game.
  own(*JeuSimple, [=](QSize size, qreal dpr) { return pics::ClassicGameIcon(size, dpr); });
  own(*Jeu3D, [=](QSize size, qreal dpr) { return pics::GridGameIcon(size, dpr); });

  // The menu: the languages as flags, and leaving the game.
  for (int i = SSLangue.Low(); i <= SSLangue.High(); ++i) {
    own(SSLangue(i), [=](QSize, qreal dpr) { return pics::FlagIcon(i == 0, QSize(26, 17), dpr); });
    SSLangue(i).SetCaption(QString());
  }
  own(*Fin, [=](QSize, qreal dpr) { return pics::PowerIcon(QSize(24, 24), dpr); });
  Fin->SetCaption(QString());

  ShowCardPointer(PictureRatio());

  // Card faces: full size for the classic game, smaller for the grid. Each is taken from the
  // worker when first shown, so the form never waits for faces it does not show yet.
  for (int code = Cartes.Low(); code <= Cartes.High(); ++code)
    Cartes(code).SetPicture(StoreCardPicture(Cartes(code).FullName(), code, false));
  for (int code = Cartes2.Low(); code <= Cartes2.High(); ++code)
    Cartes2(code).SetPicture(StoreCardPicture(Cartes2(code).FullName(), code, true));
}
