#include "interface/JeuPoker.h"

void JeuPoker::Probabilités() {}
void JeuPoker::AfficheFréquence() {}
void JeuPoker::RegisterProbabilityVariables() {}
