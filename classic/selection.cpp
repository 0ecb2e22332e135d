#include "interface/JeuPoker.h"

void JeuPoker::GardeCartes() {}
void JeuPoker::ParesseOui_Click() {}
void JeuPoker::ParesseNon_Click() {}
