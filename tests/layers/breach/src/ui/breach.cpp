// A screen that runs SQL of its own: the layer check must refuse it.
#include "store/gamestore.h"

void breach(game::Context context)
{
    context.store.execute("delete from caja");
}
