#include "interface/JeuPoker.h"

void JeuPoker::Double1X5_Click() {}
void JeuPoker::Quitte1X5_Click() {}
void JeuPoker::ChoixCarteQouD() {}
