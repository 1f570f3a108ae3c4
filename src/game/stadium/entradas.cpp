#include "entradas.h"

#include "store/gamestore.h"

namespace game::Entradas {

qint64 value(GameStore &store, Entrada row)
{
    return store.integer("select precio_entrada from entradas where idPrecio = ?", static_cast<int>(row));
}

void set(GameStore &store, Entrada row, qint64 value)
{
    store.execute("update entradas set precio_entrada = ? where idPrecio = ?", value, static_cast<int>(row));
}

} // namespace game::Entradas
