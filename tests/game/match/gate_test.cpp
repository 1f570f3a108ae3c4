#include "careerfixture.h"
