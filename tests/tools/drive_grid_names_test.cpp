// talvero-drive reaches the grid's variables and controls, the title timer and the game
// switch by name, as the real tool.
#include <gtest/gtest.h>

#include "tests/interface/options_helpers.h"
#include "tests/support/helpers.h"

using namespace options;

namespace {

QString Draw(const std::vector<int>& codes) {
  QStringList parts{"draw"};
  for (int c : codes) parts << QString::number(c);
  return parts.join(' ');
}

TEST(DriveReachesGrid, GridVariablesAndControlsAtStart) {
  const QStringList out = RunToolLines(
      {"click SSLangue(0)", "var MainsLignes(0)", "var MainsLignes(11)", "var GainTirage", "var LignesJouées(3)",
       "var IndexLigne(0)", "var CarteChoisie", "var NomsMains(10)", "var NomsMains(6)", "get Deal2(24).Picture",
       "get UnADouzeTémoin(11).BackColor", "get UnADouzeTémoin(0).BackColor", "get SSAireJeu5.Visible",
       "var MainsLignes(12)", "var NomsMains(11)", "close"});
  EXPECT_EQ(out, (QStringList{"MainsLignes(0)=0", "MainsLignes(11)=0", "GainTirage=0", "LignesJouées(3)=0",
                              "IndexLigne(0)=0", "CarteChoisie=0", "NomsMains(10)=NOTHING", "NomsMains(6)=4 of KIND",
                              "Deal2(24).Picture=Cartes(54)", "UnADouzeTémoin(11).BackColor=8421504",
                              "UnADouzeTémoin(0).BackColor=65535", "SSAireJeu5.Visible=0",
                              "error: index 12 is outside MainsLignes(0 to 11)",
                              "error: index 11 is outside NomsMains(0 to 10)", "ended"}));
}

TEST(DriveReachesGrid, SetReachesTheGridVariables) {
  const QStringList out =
      RunToolLines({"set MainsLignes(4) 6", "var MainsLignes(4)", "set GainTirage 123", "var GainTirage",
                    "set LignesJouées(24) -1", "var LignesJouées(24)", "set IndexLigne(2) 17", "var IndexLigne(2)",
                    "set CarteChoisie 9", "var CarteChoisie", "close"});
  EXPECT_EQ(out, (QStringList{"MainsLignes(4)=6", "GainTirage=123", "LignesJouées(24)=-1", "IndexLigne(2)=17",
                              "CarteChoisie=9", "ended"}));
}

TEST(DriveReachesGrid, TitleTimerTicksByName) {
  const QStringList out =
      RunToolLines({"get TitreImage(1).Picture", "get TitreImage(2).Picture", "tick TitreTimer",
                    "get TitreImage(0).Picture", "tick TitreTimer", "get TitreImage(0).Picture", "close"});
  ASSERT_EQ(out.size(), 5);
  const QString first = out[0].section('=', 1);
  const QString second = out[1].section('=', 1);
  EXPECT_NE(first, second);
  const QString a = out[2].section('=', 1);
  const QString b = out[3].section('=', 1);
  EXPECT_TRUE((a == first && b == second) || (a == second && b == first)) << a.toStdString() << " " << b.toStdString();
  EXPECT_EQ(out[4], "ended");
}

TEST(DriveReachesGrid, FirstGridDrawingThroughTheTool) {
  const QStringList out = RunToolLines({"click SSLangue(0)",
                                        "click Jeu3D",
                                        "get Jeu3D.BevelWidth",
                                        "get SSAireJeu5.Visible",
                                        Draw(kGridFourKings),
                                        "click Jouer",
                                        "var NbTirées",
                                        "var Capital",
                                        "get Cartes2(11).Picture",
                                        "get Deal2(0).Picture",
                                        "get Cartes2(22).Picture",
                                        "get Deal2(24).Picture",
                                        "var GainTirage",
                                        "var MainsLignes(0)",
                                        "get Mains5(0).Caption",
                                        "get Gains5(0).Caption",
                                        "get Gains5(12).Caption",
                                        "var IndexLigne(4)",
                                        "var LignesJouées(3)",
                                        "var LignesJouées(4)",
                                        "var CartesTirage(24)",
                                        "get SSConseils5.Visible",
                                        "close"});
  ASSERT_EQ(out.size(), 19) << out.join('\n').toStdString();
  EXPECT_EQ(out[0], "Jeu3D.BevelWidth=1");
  EXPECT_EQ(out[1], "SSAireJeu5.Visible=-1");
  EXPECT_EQ(out[2], "NbTirées=25");
  EXPECT_EQ(out[3], "Capital=199");
  // Deal2(0) shows the king of clubs, Deal2(24) the jack of diamonds.
  EXPECT_EQ(out[5].section('=', 1), out[4].section('=', 1));
  EXPECT_EQ(out[7].section('=', 1), out[6].section('=', 1));
  EXPECT_EQ(out.mid(8),
            (QStringList{"GainTirage=40", "MainsLignes(0)=6", "Mains5(0).Caption=4 of KIND", "Gains5(0).Caption=40",
                         "Gains5(12).Caption=40", "IndexLigne(4)=4", "LignesJouées(3)=-1", "LignesJouées(4)=0",
                         "CartesTirage(24)=22", "SSConseils5.Visible=-1", "ended"}));
}

}  // namespace
