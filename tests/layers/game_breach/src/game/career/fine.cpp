// The career may use the stadium.
#include "stadium/works.h"
