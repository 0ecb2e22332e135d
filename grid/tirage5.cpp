#include "interface/JeuPoker.h"

void JeuPoker::Tirage5() {}
