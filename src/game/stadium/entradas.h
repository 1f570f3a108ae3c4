#pragma once

namespace game {

// The four settings the player keeps from match to match, rows of the table entradas: the
// price of a ticket and of an advertising board, which the gate charges at home, and the
// codes of the defensive and attacking systems of the tactics screen. The rows are fixed;
// only their values change.
//
//   const qint64 ticket = sql::stadium::entrada(store, Entrada::TicketPrice);
//   sql::stadium::setEntrada(store, Entrada::DefenceSystem, 4);    // 3-2-1
enum class Entrada { TicketPrice = 1, BoardPrice = 2, DefenceSystem = 3, AttackSystem = 4 };

} // namespace game
