// A stadium rule that runs its own SQL: the check must refuse it.
void ledgerBreach(game::GameStore &store) { store.execute("update caja set Caja = 0"); }
