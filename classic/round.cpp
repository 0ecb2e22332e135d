#include "interface/JeuPoker.h"

void JeuPoker::Jouer_Click() {}
void JeuPoker::Jouer_MouseDown(int, int, int, int) {}
void JeuPoker::Jouer_MouseUp(int, int, int, int) {}
void JeuPoker::Tirage_KeyDown(int, int) {}
void JeuPoker::Tirage_KeyUp(int, int) {}
void JeuPoker::Tirage1() {}
void JeuPoker::InitTirage() {}
void JeuPoker::RegisterClassicVariables() {}
