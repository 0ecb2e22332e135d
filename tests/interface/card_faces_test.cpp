// The card faces' worker: the back drawn from a document holding only the back, the faces
// drawn from the whole deck, the same pictures either way, and nothing drawn twice.
#include "interface/card_faces.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QSvgRenderer>

#include "interface/deck_svg.h"
#include "tests/support/harness.h"

namespace {

QImage Argb(const QImage& img) { return img.convertToFormat(QImage::Format_ARGB32); }

TEST(CardFaces, TheBackAloneIsASmallDocumentThatDrawsTheSameBackAsTheDeck) {
  const QByteArray alone = pics::DeckElementDocument(pics::DeckFile(), pics::CardElement(54));
  ASSERT_FALSE(alone.isEmpty());
  QSvgRenderer deck(pics::DeckFile());
  QSvgRenderer back(alone);
  ASSERT_TRUE(back.isValid());
  ASSERT_TRUE(back.elementExists(QStringLiteral("back_c9")));
  // A small part of the deck's text.
  EXPECT_LT(alone.size(), 100 * 1000);
  for (const QSize size : {QSize(88, 133), QSize(65, 87)}) {
    const QImage fromDeck = Argb(pics::CardFace(deck, 54, size, 1));
    const QImage fromAlone = Argb(pics::CardFace(back, 54, size, 1));
    ASSERT_EQ(fromDeck.size(), fromAlone.size());
    EXPECT_EQ(fromDeck, fromAlone) << size.width() << "x" << size.height();
  }
}

TEST(CardFaces, AFaceDocumentAloneAlsoMatchesTheDeck) {
  // The extraction is not tied to the back: any element with its groups and references.
  QSvgRenderer deck(pics::DeckFile());
  for (int code : {0, 12, 25, 38, 51, 52, 53}) {
    QSvgRenderer alone(pics::DeckElementDocument(pics::DeckFile(), pics::CardElement(code)));
    ASSERT_TRUE(alone.elementExists(pics::CardElement(code))) << code;
    EXPECT_EQ(Argb(pics::CardFace(deck, code, QSize(88, 133), 1)), Argb(pics::CardFace(alone, code, QSize(88, 133), 1)))
        << code;
  }
}

TEST(CardFaces, AMissingFileOrElementGivesNoDocument) {
  EXPECT_TRUE(pics::DeckElementDocument(QStringLiteral("/nonexistent/deck.svgz"), QStringLiteral("back_c9")).isEmpty());
  EXPECT_TRUE(pics::DeckElementDocument(pics::DeckFile(), QStringLiteral("no_such_card")).isEmpty());
}

TEST(CardFaces, TheWorkersFacesEqualFacesDrawnFromTheDeck) {
  TestApp();
  const pics::CardFaces::Sizes sizes{QSize(88, 133), 55, QSize(65, 87), 54, 1};
  pics::CardFaces faces(sizes);
  QSvgRenderer deck(pics::DeckFile());
  for (int code : {54, 0, 17, 52, 53})
    EXPECT_EQ(Argb(faces.Face(code).toImage()), Argb(pics::CardFace(deck, code, sizes.face, 1))) << code;
  for (int code : {0, 30, 53})
    EXPECT_EQ(Argb(faces.Small(code).toImage()), Argb(pics::SmallCardFace(deck, code, sizes.small, 1))) << code;
  faces.WaitAll();
}

TEST(CardFaces, AFaceWantedBeforeTheFirstFrameIsDrawnWithoutWaitingForIt) {
  // Nobody calls Continue: asking for a face lets the worker go on by itself.
  TestApp();
  pics::CardFaces faces({QSize(88, 133), 55, QSize(65, 87), 54, 1});
  EXPECT_FALSE(faces.Face(7).isNull());
  EXPECT_FALSE(faces.Small(7).isNull());
}

TEST(CardFaces, FormsOfOneProcessShareTheFacesAndThePictureIsDrawnOnce) {
  qint64 first = 0;
  {
    Harness a;
    first = a.form->Cartes(10).GetPicture()->Pixmap().cacheKey();
    // A second look at a picture is the same pixmap, not a new drawing.
    EXPECT_EQ(a.form->Cartes(10).GetPicture()->Pixmap().cacheKey(), first);
    EXPECT_EQ(a.form->ChiffresModèle(3).GetPicture()->Pixmap().cacheKey(),
              a.form->ChiffresModèle(3).GetPicture()->Pixmap().cacheKey());
  }
  Harness b;
  EXPECT_EQ(b.form->Cartes(10).GetPicture()->Pixmap().cacheKey(), first);
}

}  // namespace
