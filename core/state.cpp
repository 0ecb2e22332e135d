#include "interface/JeuPoker.h"

void JeuPoker::Initialise() {}
void JeuPoker::InitPremierTirage() {}
