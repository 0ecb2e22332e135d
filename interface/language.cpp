#include "interface/JeuPoker.h"

void JeuPoker::ModifieLangue() {}
