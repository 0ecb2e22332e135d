// The card deck: the SVG file the card faces are drawn from, the element of each card in it,
// and a document cut from the deck that holds one card alone (a fiftieth of the deck, parsed
// in a moment, for drawing the back before the whole deck is parsed). Plain functions over
// the file, safe on any thread.
#pragma once

#include <QByteArray>
#include <QString>

namespace pics {

// The deck's file (an .svgz).
QString DeckFile();
// The deck's element id of card `code` (0..51 by 13 x suit + rank, 52 and 53 the jokers, 54
// the back).
QString CardElement(int code);
// A document of the deck's file holding only the element `id` (with the groups around it and
// what it refers to), for drawing that card without parsing the whole deck. Empty when the
// file or the element cannot be found.
QByteArray DeckElementDocument(const QString& deckFile, const QString& id);

}  // namespace pics
