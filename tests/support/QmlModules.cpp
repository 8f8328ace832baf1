#include "QmlModules.h"
