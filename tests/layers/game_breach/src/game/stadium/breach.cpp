// A stadium rule that reaches up to the career: the check must refuse it.
#include "career/week.h"
