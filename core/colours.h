// The colours of the form, as ForeColor and BackColor take them: 0xBBGGRR, blue in the high
// byte. A colour that serves many purposes is named by what it looks like, one that serves a
// single part of the form by that part.
#pragma once

#include "core/vb.h"

namespace couleur {

inline constexpr Long kNoir = 0x000000;
inline constexpr Long kBlanc = 0xFFFFFF;
inline constexpr Long kRouge = 0x0000FF;
inline constexpr Long kRougeSombre = 0x0000C0;
inline constexpr Long kJaune = 0x00FFFF;
inline constexpr Long kJaunePâle = 0x80FFFF;
inline constexpr Long kOcre = 0x00C0C0;
inline constexpr Long kBleu = 0xFF0000;
inline constexpr Long kGris = 0x808080;
inline constexpr Long kGrisClair = 0xC0C0C0;
inline constexpr Long kGrisFoncé = 0x404040;
inline constexpr Long kAnthracite = 0x202020;
inline constexpr Long kSarcelle = 0x404000;  // the percentage and count columns while counted

inline constexpr Long kFondPub = 0x201008;          // the publishers' panels
inline constexpr Long kFondAides = 0x303030;        // the rules page
inline constexpr Long kFondBoutonsMise = 0x505050;  // the + and - buttons
inline constexpr Long kFondTirage = 0x707070;       // around JOUER
inline constexpr Long kFondMenuJeux = 0x404080;     // the choice of game and its labels
inline constexpr Long kFondBoutonsJeux = 0x006000;  // the JEU 1 and JEU 2 buttons
inline constexpr Long kTapis = 0x004000;            // the play areas and their cards
inline constexpr Long kFondDoubler = 0x004080;      // the double-up bar of JEU 1
inline constexpr Long kFondGains5 = 0x605000;       // the winnings of the grid's lines
inline constexpr Long kJouezFond = 0x808000;        // a hold bar saying JOUEZ
inline constexpr Long kGardée = 0xC0C000;           // a hold bar saying GARDER
inline constexpr Long kJetée = 0x607000;            // a hold bar saying JETER

// AUTO: grey at rest as designed, darker while running (and when a lost game puts it at
// rest); a stop writes kGrisArrêt, not the design value.
inline constexpr Long kGrisRepos = 0x7A7A7A;
inline constexpr Long kGrisMarche = 0x656565;
inline constexpr Long kGrisArrêt = 0x07A7A7;

}  // namespace couleur
