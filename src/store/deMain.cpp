#include "deMain.h"

DataEnvironment deMain;
