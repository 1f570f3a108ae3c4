#pragma once

namespace game {

class GameStore;
class Random;
class Dialogs;

// What every rule of the game works with: the database, chance and the player's attention.
// Owned by the application (or by a test) and handed to the routines and screens that need it.
struct Context
{
    GameStore &store;
    Random &random;
    Dialogs &dialogs;
};

} // namespace game
