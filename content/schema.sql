-- Zarpazo: the career database.
-- Several tables are written by position, so the column order of each table is part of
-- the game and must not change. Money is whole euros; dates are ISO text (2004-08-21).

-- The one career row: the open week, the manager and his club.
CREATE TABLE datos_jugador (
    jornada      INTEGER NOT NULL DEFAULT 0,
    nombre       TEXT    NOT NULL DEFAULT '',
    apellidos    TEXT    NOT NULL DEFAULT '',
    idequipo     INTEGER NOT NULL DEFAULT 0,
    NombreEquipo TEXT    NOT NULL DEFAULT ''
);

-- Clubs of every country: 1-16 the league, 17-83 abroad and below, 84 youths, 85 released.
CREATE TABLE equipos (
    idequipo     INTEGER PRIMARY KEY,
    NombreEquipo TEXT    NOT NULL UNIQUE,
    codpais      INTEGER NOT NULL,
    categoria    INTEGER NOT NULL
);

CREATE TABLE jugadores (
    idjugador         INTEGER PRIMARY KEY,
    idequipo          INTEGER NOT NULL,
    Nombre            TEXT    NOT NULL,
    Apellidos         TEXT    NOT NULL,
    Edad              INTEGER NOT NULL,
    Posicion          TEXT    NOT NULL,
    Media             INTEGER NOT NULL,
    Dorsal            INTEGER NOT NULL,
    Nacionalidad      TEXT    NOT NULL,
    Clausula_Recision INTEGER NOT NULL,
    Ficha             INTEGER NOT NULL,
    Lesiones          INTEGER NOT NULL DEFAULT 0,
    venta             INTEGER NOT NULL DEFAULT 0,
    libre1            INTEGER NOT NULL DEFAULT 0,
    libre2            INTEGER NOT NULL DEFAULT 0,
    libre3            INTEGER NOT NULL DEFAULT 0,
    "Años_Contrato"   INTEGER NOT NULL
);
CREATE INDEX jugadores_por_equipo ON jugadores (idequipo, Posicion, Media, venta);
-- The market's lists read the few players on sale among all of them.
CREATE INDEX jugadores_en_venta ON jugadores (venta, idjugador, idequipo, Posicion) WHERE venta = 1;

CREATE TABLE lesiones (
    idlesion      INTEGER PRIMARY KEY,
    nombre_lesion TEXT NOT NULL
);

CREATE TABLE infoteams (
    idequipo    INTEGER PRIMARY KEY,
    presupuesto INTEGER NOT NULL
);

-- Yes/no columns hold 0 or 1.
CREATE TABLE estadios (
    idequipo    INTEGER PRIMARY KEY,
    Nombre      TEXT    NOT NULL,
    min_gradas  INTEGER NOT NULL,
    parking     INTEGER NOT NULL,
    focos       INTEGER NOT NULL,
    marcadores  INTEGER NOT NULL,
    calefaccion INTEGER NOT NULL,
    accesos     INTEGER NOT NULL,
    enfermeria  INTEGER NOT NULL,
    tienda      INTEGER NOT NULL,
    lavabos     INTEGER NOT NULL,
    cafeteria   INTEGER NOT NULL
);

-- 1 ticket price, 2 price of a hoarding, 3 defence system code, 4 attack system code.
CREATE TABLE entradas (
    idPrecio       INTEGER PRIMARY KEY,
    precio_entrada INTEGER NOT NULL
);

CREATE TABLE televisiones (
    idTelevision INTEGER PRIMARY KEY,
    NombreTV     TEXT NOT NULL
);

CREATE TABLE entrenadores (
    idEntrenador         INTEGER PRIMARY KEY,
    nombre               TEXT    NOT NULL,
    apellidos            TEXT    NOT NULL,
    confianza_directivos INTEGER NOT NULL,
    confianza_publico    INTEGER NOT NULL,
    puntuacion           INTEGER NOT NULL
);

-- The league table. puesto_anterior is the club's slot in the fixture template; the sixteen
-- values are a permutation of 1 to 16, rewritten one club at a time when a season closes.
CREATE TABLE asobal (
    teams                INTEGER PRIMARY KEY,
    "Partidos_ Ganados"  INTEGER NOT NULL DEFAULT 0,
    Partidos_Empatados   INTEGER NOT NULL DEFAULT 0,
    Partidos_Perdidos    INTEGER NOT NULL DEFAULT 0,
    Goles_Favor          INTEGER NOT NULL DEFAULT 0,
    Goles_Contra         INTEGER NOT NULL DEFAULT 0,
    Puntos               INTEGER NOT NULL DEFAULT 0,
    puesto_anterior      INTEGER NOT NULL,
    puesto_actual        INTEGER NOT NULL
);

-- The fixture template: template positions, not clubs. 0-0 means not played.
CREATE TABLE liga_asobal (
    idpartido              INTEGER PRIMARY KEY,
    jornada                INTEGER NOT NULL,
    pos_equipo_local       INTEGER NOT NULL,
    pos_equipo_visitante   INTEGER NOT NULL,
    goles_equipo_local     INTEGER NOT NULL DEFAULT 0,
    goles_equipo_visitante INTEGER NOT NULL DEFAULT 0,
    fecha                  TEXT    NOT NULL
);
CREATE INDEX liga_asobal_por_jornada ON liga_asobal (jornada);

-- The fourteen places of the call-up, in rowid order; a free place has idjugador 0.
CREATE TABLE miequipo (
    Pos_Partido TEXT    NOT NULL UNIQUE,
    idequipo    INTEGER NOT NULL DEFAULT 0,
    idjugador   INTEGER NOT NULL DEFAULT 0,
    Nombre      TEXT    NOT NULL DEFAULT '',
    Apellidos   TEXT    NOT NULL DEFAULT '',
    Media       INTEGER NOT NULL DEFAULT 0,
    Posicion    TEXT    NOT NULL DEFAULT ''
);

CREATE TABLE pretemporada (
    idpartido        INTEGER PRIMARY KEY,
    equipo_local     INTEGER NOT NULL,
    equipo_visitante INTEGER NOT NULL,
    fecha            TEXT    NOT NULL
);

CREATE TABLE calendario (
    semana    INTEGER PRIMARY KEY,
    idpartido INTEGER NOT NULL,
    fecha     TEXT    NOT NULL
);

CREATE TABLE caja (
    semana                 INTEGER PRIMARY KEY,
    ingresos_Taquilla      INTEGER NOT NULL DEFAULT 0,
    ingresos_publi         INTEGER NOT NULL DEFAULT 0,
    ingresos_TV            INTEGER NOT NULL DEFAULT 0,
    Ingresos_Venta_Jugador INTEGER NOT NULL DEFAULT 0,
    Ingresos_Tienda        INTEGER NOT NULL DEFAULT 0,
    Gastos_Fichajes        INTEGER NOT NULL DEFAULT 0,
    Gastos_Despido         INTEGER NOT NULL DEFAULT 0,
    Gastos_Fichas          INTEGER NOT NULL DEFAULT 0,
    Gastos_Hospitales      INTEGER NOT NULL DEFAULT 0,
    Gastos_Empleados       INTEGER NOT NULL DEFAULT 0,
    Gastos_Remodelaciones  INTEGER NOT NULL DEFAULT 0,
    Ingresos               INTEGER NOT NULL DEFAULT 0,
    Gastos                 INTEGER NOT NULL DEFAULT 0,
    Caja                   INTEGER NOT NULL DEFAULT 0
);

-- Pending orders: transfer offers and stadium works waiting for their week.
CREATE TABLE selects (
    "select"      TEXT    NOT NULL,
    jornada       INTEGER NOT NULL,
    oferta        INTEGER NOT NULL,
    clausula      INTEGER NOT NULL,
    ficha         INTEGER NOT NULL,
    jugador       INTEGER NOT NULL,
    observaciones TEXT    NOT NULL,
    pago          TEXT    NOT NULL
);

-- The rival's seven for the coming match.
CREATE TABLE jugar (
    idequipo  INTEGER NOT NULL,
    idjugador INTEGER NOT NULL,
    Nombre    TEXT    NOT NULL,
    Apellidos TEXT    NOT NULL,
    Media     INTEGER NOT NULL,
    Posicion  TEXT    NOT NULL,
    plaza     INTEGER NOT NULL
);

-- What a career's save file is and where the career stands: one row, written as the career
-- is saved (a save is a copy of the working file). The season and the career's name are kept
-- up to date as the career goes on.
--   etapa: '' no career, planificando (the pre-season's planner), semana (a week open),
--   jugado (its match recorded), final (the season's last week behind, not closed yet),
--   veredicto (closed, its orders waiting). eventos: the week's events have run; canal: a
--   broadcast waiting for the player's OK; taquilla: the week's gate is in the ledger.
CREATE TABLE partida (
    formato     INTEGER NOT NULL,
    carrera     TEXT    NOT NULL DEFAULT '',
    nombre      TEXT    NOT NULL DEFAULT '',
    apellidos   TEXT    NOT NULL DEFAULT '',
    idequipo    INTEGER NOT NULL DEFAULT 0,
    equipo      TEXT    NOT NULL DEFAULT '',
    temporada   INTEGER NOT NULL DEFAULT 1,
    jornada     INTEGER NOT NULL DEFAULT 0,
    etapa       TEXT    NOT NULL DEFAULT '',
    eventos     INTEGER NOT NULL DEFAULT 0,
    canal       TEXT    NOT NULL DEFAULT '',
    taquilla    INTEGER NOT NULL DEFAULT 0,
    guardada    TEXT    NOT NULL DEFAULT '',
    presupuesto INTEGER NOT NULL DEFAULT 0
);
INSERT INTO partida (formato) VALUES (1);

-- One row a closed season, written before the close empties it.
CREATE TABLE historial (
    temporada      INTEGER PRIMARY KEY,
    anos           TEXT    NOT NULL,
    campeon        TEXT    NOT NULL,
    puesto         INTEGER NOT NULL,
    puntos         INTEGER NOT NULL,
    ganados        INTEGER NOT NULL,
    empatados      INTEGER NOT NULL,
    perdidos       INTEGER NOT NULL,
    goles_favor    INTEGER NOT NULL,
    goles_contra   INTEGER NOT NULL,
    presupuesto    INTEGER NOT NULL,
    goleador       TEXT    NOT NULL DEFAULT '',
    goles_goleador INTEGER NOT NULL DEFAULT 0,
    fichaje        TEXT    NOT NULL DEFAULT '',
    importe_fichaje INTEGER NOT NULL DEFAULT 0,
    venta          TEXT    NOT NULL DEFAULT '',
    importe_venta  INTEGER NOT NULL DEFAULT 0
);

-- The goals of each player of the user's club in the club's matches, season by season.
CREATE TABLE goleadores (
    temporada INTEGER NOT NULL,
    idjugador INTEGER NOT NULL,
    Nombre    TEXT    NOT NULL,
    Apellidos TEXT    NOT NULL,
    goles     INTEGER NOT NULL DEFAULT 0,
    PRIMARY KEY (temporada, idjugador)
);

-- The players the user's club signed and sold, season by season.
CREATE TABLE traspasos (
    temporada INTEGER NOT NULL,
    jornada   INTEGER NOT NULL,
    idjugador INTEGER NOT NULL,
    Nombre    TEXT    NOT NULL,
    Apellidos TEXT    NOT NULL,
    tipo      TEXT    NOT NULL,
    importe   INTEGER NOT NULL
);
