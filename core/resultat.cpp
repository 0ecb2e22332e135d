#include "interface/JeuPoker.h"

void JeuPoker::Résultat() {}
