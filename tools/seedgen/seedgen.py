#!/usr/bin/env python3
"""Zarpazo seed data generator.

Writes the opening content of a career, one UTF-8 TSV file per seeded table,
into content/seed/: the 85 clubs and pools, about 1,330 fictional players,
the league table and its 240 fixtures, budgets, stadiums, coaches, injuries,
broadcasters, prices and the empty call-up.  The transient tables
(pretemporada, calendario, caja, selects, jugar) start empty and get no file.

The output is committed; the build compiles it, with content/schema.sql, into
the pristine database balonmanoX.mdb.  Everything comes from one fixed
random.Random(SEED), so a rerun rewrites byte-identical files.  After writing,
the files are loaded into an in-memory database built from the schema and
every rule the game relies on is checked (see check()).

    python3 tools/seedgen/seedgen.py [OUT_DIR]          generate, then check
    python3 tools/seedgen/seedgen.py --check [OUT_DIR]  only check the files

TSV: first line the column names in schema order, then one row per line,
fields separated by one TAB, no quoting, integers in decimal.
"""

import argparse
import datetime
import os
import random
import sqlite3
import sys
import unicodedata

sys.dont_write_bytecode = True      # leave no __pycache__ in the source tree
from names import FOREIGN_MIX, NAMES, REAL_PEOPLE  # noqa: E402

SEED = 20040911
ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
SCHEMA = os.path.join(ROOT, "content", "schema.sql")

SEEDED_TABLES = ["datos_jugador", "equipos", "jugadores", "lesiones", "infoteams",
                 "estadios", "entradas", "televisiones", "entrenadores", "asobal",
                 "liga_asobal", "miequipo"]
TRANSIENT_TABLES = ["pretemporada", "calendario", "caja", "selects", "jugar"]

POSITIONS = ["Portero", "Extremo Izquierdo", "Extremo Derecho", "Lateral Izquierdo",
             "Lateral Derecho", "Pivote", "Central"]

# The nationality list of the new-career and youth screens.
NATIONALITIES = ["Albania", "Argelia", "Australia", "Alemania", "Brasil", "Canada", "China",
                 "Croacia", "Dinamarca", "España", "Eslovenia", "Francia", "Grecia", "Hungría",
                 "Islandia", "Italia", "Inglaterra", "Japón", "Luxemburgo", "Macedonia",
                 "Marruecos", "Noruega", "Portugal", "Rusia", "República Checa", "Suiza",
                 "Suecia", "Serbia-Montenegro", "Turquía", "Ucrania"]

# codpais of the country buttons, and the nationality of a club's own players.
COUNTRIES = {1: "España", 2: "Alemania", 3: "Francia", 4: "Italia", 5: "Ucrania",
             6: "Islandia", 7: "Dinamarca", 8: "Eslovenia", 9: "Suecia", 10: "Croacia",
             11: "Rusia", 12: "Hungría", 13: "República Checa", 14: "Suiza", 15: "Grecia",
             16: "Turquía", 17: "Portugal", 18: "Serbia-Montenegro"}

# The sixteen league clubs: id, name, class, squad average, budget, pavilion, seats.
# Names equal the new-career captions ignoring case. The squad average is hit
# exactly, so the simulated fixtures (stronger average scores 21 to 41) and
# last season's order follow this list: the higher the average, the higher
# the club finished.
LEAGUE = [
    (1, "F.C. Barcelona", 1, 79, 8600000, "Palau Blaugrana", 7500),
    (2, "BM Ciudad Real", 1, 80, 9000000, "Pabellón Quijote Arena", 5800),
    (3, "Caja España Ademar de León", 1, 77, 6800000, "Palacio de los Deportes de León", 5200),
    (4, "Portland San Antonio", 1, 78, 7400000, "Pabellón Universitario de Navarra", 4800),
    (5, "BM Valladolid", 1, 76, 6200000, "Polideportivo Huerta del Rey", 5000),
    (6, "BM Altea", 2, 68, 3500000, "Pabellón Municipal de Altea", 3600),
    (7, "Caja Cantabria", 2, 69, 3800000, "Palacio de Deportes de Santander", 4500),
    (8, "BM Valencia", 2, 71, 4600000, "Pabellón Fuente de San Luis", 4200),
    (9, "BM Granollers", 2, 70, 4200000, "Palau d'Esports de Granollers", 4700),
    (10, "S.D. Teucro", 3, 64, 2400000, "Pabellón Municipal de Pontevedra", 3800),
    (11, "Frg. Morrazo Cangas", 3, 63, 2200000, "Pabellón O Gatañal", 3000),
    (12, "C.D. Bidasoa", 3, 65, 2700000, "Polideportivo Artaleku", 3400),
    (13, "Barakaldo UPV", 4, 60, 1700000, "Polideportivo de Lasesarre", 3100),
    (14, "Octavio Pilotes Posada", 4, 61, 1900000, "Pabellón de As Travesas", 3500),
    (15, "J.D. Arrate", 3, 66, 2900000, "Polideportivo Ipurua", 3200),
    (16, "Almeria 2005", 4, 59, 1500000, "Pabellón Moisés Ruiz", 3300),
]

# Clubs 17 to 83 in id order: country, name, class, squad average.
ABROAD = [
    (1, "BM Torrevieja", 4, 58), (1, "BM Antequera", 4, 57),
    (1, "CB Guadalajara", 4, 56), (1, "BM Puerto Sagunto", 4, 55),
    (2, "THW Kiel", 1, 79), (2, "SG Flensburg-Handewitt", 1, 78), (2, "TBV Lemgo", 1, 76),
    (2, "SC Magdeburg", 2, 74), (2, "HSV Hamburg", 2, 72), (2, "VfL Gummersbach", 2, 71),
    (3, "Montpellier HB", 1, 77), (3, "US Ivry", 2, 70), (3, "Chambéry Savoie HB", 2, 69),
    (3, "US Créteil", 3, 66), (3, "Paris Handball", 3, 65),
    (4, "Pallamano Conversano", 3, 63), (4, "Pallamano Trieste", 3, 62), (4, "SSV Bozen", 4, 58),
    (5, "ZTR Zaporizhia", 3, 64), (5, "Portovik Yuzhny", 3, 62), (5, "HK Kharkiv", 4, 58),
    (6, "Haukar Hafnarfjörður", 3, 63), (6, "Valur Reykjavík", 3, 62), (6, "KA Akureyri", 4, 60),
    (7, "GOG Svendborg", 2, 72), (7, "KIF Kolding", 2, 71), (7, "Aalborg Håndbold", 2, 70),
    (7, "FCK Håndbold", 2, 69), (7, "Skjern Håndbold", 3, 67),
    (8, "RK Celje Pivovarna Laško", 1, 77), (8, "RK Gorenje Velenje", 2, 70),
    (8, "RK Prule 67", 3, 64), (8, "RK Koper", 3, 63),
    (9, "IK Sävehof", 2, 69), (9, "Redbergslids IK", 2, 68), (9, "HK Drott", 3, 66),
    (9, "IFK Skövde", 3, 65),
    (10, "RK Zagreb", 1, 76), (10, "RK Metković", 2, 71), (10, "RK Medveščak", 3, 64),
    (10, "RK Karlovac", 4, 59),
    (11, "Chekhovskiye Medvedi", 1, 75), (11, "Dinamo Astrakhan", 2, 69),
    (11, "Kaustik Volgograd", 3, 65), (11, "SKIF Krasnodar", 3, 64),
    (12, "MKB Veszprém", 1, 78), (12, "Pick Szeged", 1, 75), (12, "Dunaferr SE", 2, 70),
    (12, "Tatabánya KC", 3, 63),
    (13, "Baník Karviná", 3, 64), (13, "Dukla Praha", 3, 62), (13, "HC Zlín", 4, 58),
    (14, "Kadetten Schaffhausen", 3, 64), (14, "ZMC Amicitia Zürich", 3, 63),
    (14, "Pfadi Winterthur", 3, 62),
    (15, "Filippos Veria", 4, 60), (15, "Diomidis Argous", 4, 59), (15, "Panellinios AC", 4, 57),
    (16, "Beşiktaş JK", 4, 60), (16, "Ankara Gençlik SK", 4, 57), (16, "İzmir Büyükşehir SK", 4, 56),
    (17, "FC Porto", 2, 68), (17, "ABC Braga", 3, 66), (17, "Sporting CP", 3, 65),
    (18, "RK Crvena Zvezda", 3, 65), (18, "RK Partizan", 3, 64), (18, "RK Lovćen Cetinje", 3, 63),
]

YOUTH_POOL, FREE_POOL = 84, 85

INJURIES = ["Ninguna", "Esguince de tobillo", "Rotura de fibras", "Contractura muscular",
            "Esguince de rodilla", "Luxación de hombro", "Fractura de dedo",
            "Tendinitis rotuliana", "Lumbalgia", "Rotura de ligamento cruzado",
            "Fascitis plantar", "Sobrecarga en el gemelo"]

BROADCASTERS = ["Teleiberia Deportes", "Canal Siete Mares", "Solana Televisión",
                "Mirador TV", "Telesport Hispania", "Levantina de Televisión", "Onda Cierzo TV"]

CALL_UP = ["PORTERO", "EXTREMO IZQUIERDO", "EXTREMO DERECHO", "LATERAL IZQUIERDO",
           "LATERAL DERECHO", "PIVOTE", "CENTRAL"] + ["SUPLENTE%d" % i for i in range(1, 8)]

# Round dates: Saturdays from 11 September; no handball over Christmas and New
# Year, nor during the world championship at the end of January.
FIRST_ROUND = datetime.date(2004, 9, 11)
NO_PLAY = [(datetime.date(2004, 12, 20), datetime.date(2005, 1, 6)),
           (datetime.date(2005, 1, 20), datetime.date(2005, 2, 8))]
FIRST_MATCH_ID = 101   # 1 to 5 are the friendlies' ids


def fold(text):
    """Lower case without accents: how the game compares names."""
    text = unicodedata.normalize("NFKD", text.casefold())
    return "".join(c for c in text if not unicodedata.combining(c))


REAL_FOLDED = {fold(n) for n in REAL_PEOPLE}


def schema_columns(db):
    """Column names and declared types of every table, in schema order."""
    tables = [r[0] for r in db.execute("select name from sqlite_master where type='table'")]
    return {t: [(r[1], r[2].upper()) for r in db.execute('pragma table_info("%s")' % t)]
            for t in tables}


def schema_db(schema_path):
    db = sqlite3.connect(":memory:")
    with open(schema_path, encoding="utf-8") as f:
        db.executescript(f.read())
    return db


# ---------------------------------------------------------------- people

class NameBook:
    """Draws invented names, never the same full name twice and never the name
    of a well-known real player or coach."""

    def __init__(self, rng):
        self.rng = rng
        self.used = set()

    def draw(self, nationality, squad=None):
        """A fresh (first name, surnames). `squad`, if given, collects first
        name plus first surname of one club, which must differ too, so that no
        dressing room has two "Iñaki Santos"."""
        firsts, surnames = NAMES[nationality]
        for _ in range(10000):
            first = self.rng.choice(firsts)
            if nationality == "España":
                # Spanish custom: father's and mother's surname.
                s1, s2 = self.rng.sample(surnames, 2)
                last = s1 + " " + s2
            else:
                s1 = last = self.rng.choice(surnames)
            full, short = fold(first + " " + last), fold(first + " " + s1)
            if full in self.used or short in REAL_FOLDED:
                continue
            if squad is not None:
                if short in squad:
                    continue
                squad.add(short)
            self.used.add(full)
            return first, last
        raise RuntimeError("name lists too short for " + nationality)


def squad_shape(rng, size, keepers, most=3):
    """Positions of a squad of `size`: every position at least once, `keepers`
    goalkeepers, the rest spread over the field positions (at most `most` each)."""
    counts = {p: 1 for p in POSITIONS}
    counts["Portero"] = keepers
    order = POSITIONS[1:]
    rng.shuffle(order)
    # Back-court and pivot players first: clubs carry more of them than wings.
    order.sort(key=lambda p: 0 if p.startswith(("Lateral", "Central", "Pivote")) else 1)
    while sum(counts.values()) < size:
        for p in order:
            if sum(counts.values()) < size and counts[p] < most:
                counts[p] += 1
    return [p for p in POSITIONS for _ in range(counts[p])]


def age_for(rng, position, youth):
    if youth:
        return rng.randint(16, 19)
    peak = 28 if position == "Portero" else 26
    return max(17, min(36, round(rng.triangular(17.5, 36.4, peak))))


def ratings(rng, positions, ages, mean):
    """Ratings around `mean` (spread about 8 either way) that average exactly
    `mean` and give each position one clear best player, so a rival always
    fields its own starter without a tie. Strong clubs have one or two stars
    well above the rest."""
    n = len(positions)
    stars = 2 if mean >= 77 else 1 if mean >= 74 else 0
    for _ in range(5000):
        r = []
        for age in ages:
            bonus = -3 if age <= 20 else (-1 if age <= 23 else (1 if age <= 31 else 0))
            r.append(round(max(-9, min(9, rng.gauss(0, 4.2)))) + mean + bonus)
        star_idx = [i for i in rng.sample(range(n), stars) if ages[i] >= 22]
        for i in star_idx:
            r[i] = mean + rng.randint(10, 13)
        r = [max(45, min(92, x)) for x in r]
        # Nudge single points of the others until the squad's average is
        # exactly `mean`.
        diff = mean * n - sum(r)
        idx = [i for i in range(n) if i not in star_idx]
        rng.shuffle(idx)
        k = 0
        while diff != 0 and k < 10 * n:
            i = idx[k % len(idx)]
            step = 1 if diff > 0 else -1
            if 45 <= r[i] + step <= 92 and abs(r[i] + step - mean) <= 9:
                r[i] += step
                diff -= step
            k += 1
        if diff != 0:
            continue
        tops_ok = True
        for p in POSITIONS:
            vals = sorted((r[i] for i in range(n) if positions[i] == p), reverse=True)
            if len(vals) > 1 and vals[0] == vals[1]:
                tops_ok = False
        if tops_ok:
            return r
    raise RuntimeError("could not draw ratings around %d" % mean)


def shirt_numbers(rng, positions):
    numbers, used = [], set()
    keepers = [1, 12, 16, 22, 13]
    for p in positions:
        if p == "Portero":
            n = next(k for k in keepers if k not in used)
        else:
            while True:
                n = rng.randint(2, 35) if rng.random() < 0.9 else rng.randint(36, 99)
                if n not in used and n not in keepers[:3]:
                    break
        used.add(n)
        numbers.append(n)
    return numbers


def wage(rng, media):
    """Season wage: about 15,000 at a rating of 45 rising to 450,000 at 92."""
    f = 15000 * 30 ** ((media - 45) / 47) * rng.uniform(0.9, 1.1)
    return max(15000, min(450000, int(round(f / 100.0)) * 100))


def clause(rng, ficha):
    c = int(round(ficha * rng.uniform(3.0, 6.0) / 100.0)) * 100
    return max(3 * ficha, min(6 * ficha, c))


def nationalities(rng, size, home, foreign_share, mix):
    """`home` for most of a squad; about `foreign_share` of the places, picked
    at random, go to players from the weighted `mix` of other countries."""
    imports = int(foreign_share * size + rng.random())
    foreign = set(rng.sample(range(size), imports))
    result = []
    for i in range(size):
        nat = home
        while i in foreign and nat == home:
            nat = weighted(rng, mix)
        result.append(nat)
    return result


def weighted(rng, table):
    total = sum(w for _, w in table)
    x = rng.uniform(0, total)
    for item, w in table:
        x -= w
        if x <= 0:
            return item
    return table[-1][0]


def make_squad(rng, book, club, size, keepers, mean, home, foreign_share, mix, youth=False,
               media_range=None):
    positions = squad_shape(rng, size, keepers, max(3, -(-(size - keepers) // 6)))
    ages = [age_for(rng, p, youth) for p in positions]
    if media_range:
        medias = [rng.randint(*media_range) for _ in positions]
    else:
        medias = ratings(rng, positions, ages, mean)
    numbers = shirt_numbers(rng, positions)
    nats = nationalities(rng, size, home, foreign_share, mix)
    squad, short_names = [], set()
    for i, p in enumerate(positions):
        nat = nats[i]
        first, last = book.draw(nat, short_names)
        ficha = wage(rng, medias[i])
        years = rng.randint(1, 2) if club == FREE_POOL else weighted(
            rng, [(1, 2), (2, 4), (3, 4), (4, 2), (5, 1)])
        squad.append({
            "idequipo": club, "Nombre": first, "Apellidos": last, "Edad": ages[i],
            "Posicion": p, "Media": medias[i], "Dorsal": numbers[i], "Nacionalidad": nat,
            "Clausula_Recision": clause(rng, ficha), "Ficha": ficha, "Lesiones": 0,
            "venta": 0, "libre1": 0, "libre2": 0, "libre3": 0, "Años_Contrato": years})
    # Listed by position, best first.
    squad.sort(key=lambda pl: (POSITIONS.index(pl["Posicion"]), -pl["Media"], pl["Dorsal"]))
    return squad


# ---------------------------------------------------------------- tables

def build(rng):
    book = NameBook(rng)
    t = {}

    clubs = [{"idequipo": c[0], "NombreEquipo": c[1], "codpais": 1, "categoria": c[2]}
             for c in LEAGUE]
    for i, (pais, name, cat, _) in enumerate(ABROAD):
        clubs.append({"idequipo": 17 + i, "NombreEquipo": name, "codpais": pais, "categoria": cat})
    clubs.append({"idequipo": YOUTH_POOL, "NombreEquipo": "Juveniles", "codpais": 0, "categoria": 5})
    clubs.append({"idequipo": FREE_POOL, "NombreEquipo": "Jugadores Libres", "codpais": 0,
                  "categoria": 5})
    t["equipos"] = clubs

    players = []
    for cid, _, cat, mean, _, _, _ in LEAGUE:
        # Spanish clubs field many imports, the big ones most of all.
        share = {1: 0.40, 2: 0.28, 3: 0.18, 4: 0.14}[cat]
        size = rng.randint(16, 18) if cat <= 2 else rng.randint(15, 17)
        players += make_squad(rng, book, cid, size, 3 if size >= 17 else 2, mean, "España",
                              share, FOREIGN_MIX["España"])
    for i, (pais, _, cat, mean) in enumerate(ABROAD):
        home = COUNTRIES[pais]
        size = weighted(rng, [(13, 1), (14, 2), (15, 3), (16, 5)])
        share = 0.05 if pais == 1 else {1: 0.25, 2: 0.15, 3: 0.10, 4: 0.08}[cat]
        players += make_squad(rng, book, 17 + i, size, 2, mean, home, share,
                              FOREIGN_MIX.get(home, FOREIGN_MIX["default"]))
    # Unattached youths: five of every position, mostly Spanish.
    players += make_squad(rng, book, YOUTH_POOL, 35, 5, None, "España", 0.15,
                          FOREIGN_MIX["España"], youth=True, media_range=(50, 70))
    # Released players: three of every position but one, from everywhere.
    players += make_squad(rng, book, FREE_POOL, 20, 3, None, "España", 0.5,
                          FOREIGN_MIX["default"], media_range=(50, 70))
    for i, pl in enumerate(players):
        pl["idjugador"] = i + 1
    # A handful of players start the season injured.
    for pl in rng.sample([p for p in players if p["idequipo"] < YOUTH_POOL], 6):
        pl["Lesiones"] = rng.randint(1, 3)
    t["jugadores"] = players

    t["lesiones"] = [{"idlesion": i, "nombre_lesion": n} for i, n in enumerate(INJURIES)]
    t["infoteams"] = [{"idequipo": c[0], "presupuesto": c[4]} for c in LEAGUE]

    # Facilities by class: (low, high) level of the levelled items and the
    # chance of each yes/no item. Scoreboard, entrances and toilets start at 1.
    facilities = {1: ((2, 3), 1.0), 2: ((1, 2), 0.6), 3: ((1, 2), 0.3), 4: ((0, 1), 0.1)}
    stadiums = []
    for cid, _, cat, _, _, pavilion, seats in LEAGUE:
        (lo, hi), chance = facilities[cat]

        def level(least=0):
            return max(least, rng.randint(lo, hi))

        def yes():
            return int(rng.random() < chance)

        stadiums.append({
            "idequipo": cid, "Nombre": pavilion, "min_gradas": seats, "parking": yes(),
            "focos": level(), "marcadores": level(1), "calefaccion": yes(),
            "accesos": level(1), "enfermeria": level(), "tienda": yes(),
            "lavabos": level(1), "cafeteria": yes()})
    t["estadios"] = stadiums

    # Ticket 10 euros, hoarding 1000 euros, defence 6-0, attack 6-0. The prices sit on the
    # price buttons' grids (tickets 5 to 30 in fives, boards 900 to 1800 in hundreds), so the
    # buttons' bounds are met exactly.
    t["entradas"] = [{"idPrecio": i, "precio_entrada": v}
                     for i, v in [(1, 10), (2, 1000), (3, 1), (4, 1)]]
    t["televisiones"] = [{"idTelevision": i + 1, "NombreTV": n} for i, n in enumerate(BROADCASTERS)]

    coaches = []
    for cid, *_ in LEAGUE:
        nat = "España" if rng.random() < 0.8 else rng.choice(
            ["Croacia", "Rusia", "Serbia-Montenegro", "Dinamarca"])
        first, last = book.draw(nat)
        coaches.append({"idEntrenador": cid, "nombre": first, "apellidos": last,
                        "confianza_directivos": 5, "confianza_publico": 5, "puntuacion": 5})
    t["entrenadores"] = coaches

    # Last season's order: the champion holds 16, the last club 1.
    by_strength = sorted(LEAGUE, key=lambda c: c[3])
    table = []
    for place, c in enumerate(by_strength, start=1):
        table.append({"teams": c[0], "Partidos_ Ganados": 0, "Partidos_Empatados": 0,
                      "Partidos_Perdidos": 0, "Goles_Favor": 0, "Goles_Contra": 0, "Puntos": 0,
                      "puesto_anterior": place, "puesto_actual": 17 - place})
    t["asobal"] = sorted(table, key=lambda r: r["teams"])

    t["liga_asobal"] = fixtures()
    t["miequipo"] = [{"Pos_Partido": p, "idequipo": 0, "idjugador": 0, "Nombre": p,
                      "Apellidos": "", "Media": 0, "Posicion": ""} for p in CALL_UP]
    t["datos_jugador"] = [{"jornada": 0, "nombre": "", "apellidos": "", "idequipo": 0,
                           "NombreEquipo": ""}]
    return t


def round_robin(n=16):
    """Circle method: position n stays, the others turn. Sides alternate so
    that no club plays more than two home or away matches running inside a
    half; the second half repeats the first with home and away swapped."""
    m = n - 1
    first_half = []
    for r in range(m):
        games = [(n, r + 1) if r % 2 == 0 else (r + 1, n)]
        for i in range(1, n // 2):
            x, y = (r + i) % m + 1, (r - i) % m + 1
            games.append((x, y) if i % 2 == 1 else (y, x))
        first_half.append(games)
    return first_half + [[(b, a) for a, b in g] for g in first_half]


def round_dates(count):
    dates, d = [], FIRST_ROUND
    while len(dates) < count:
        if not any(lo <= d <= hi for lo, hi in NO_PLAY):
            dates.append(d)
        d += datetime.timedelta(days=7)
    return dates


def fixtures():
    rounds = round_robin()
    dates = round_dates(len(rounds))
    rows, mid = [], FIRST_MATCH_ID
    for j, games in enumerate(rounds, start=1):
        for home, away in games:
            rows.append({"idpartido": mid, "jornada": j, "pos_equipo_local": home,
                         "pos_equipo_visitante": away, "goles_equipo_local": 0,
                         "goles_equipo_visitante": 0, "fecha": dates[j - 1].isoformat()})
            mid += 1
    return rows


# ---------------------------------------------------------------- files

def write_tsv(out_dir, columns, tables):
    os.makedirs(out_dir, exist_ok=True)
    for name in SEEDED_TABLES:
        cols = [c for c, _ in columns[name]]
        lines = ["\t".join(cols)]
        for row in tables[name]:
            if sorted(row) != sorted(cols):
                raise ValueError("%s: row has columns %s" % (name, sorted(row)))
            fields = [str(row[c]) for c in cols]
            for f in fields:
                if "\t" in f or "\n" in f or "\r" in f:
                    raise ValueError("%s: bad character in %r" % (name, f))
            lines.append("\t".join(fields))
        with open(os.path.join(out_dir, name + ".tsv"), "w", encoding="utf-8", newline="\n") as f:
            f.write("\n".join(lines) + "\n")


def load(out_dir, schema_path):
    """Builds a database from the schema and the TSV files, binding every field
    as text as the build does, and returns it."""
    db = schema_db(schema_path)
    columns = schema_columns(db)
    for name in SEEDED_TABLES:
        with open(os.path.join(out_dir, name + ".tsv"), encoding="utf-8", newline="") as f:
            text = f.read()
        assert text.endswith("\n") and not text.endswith("\n\n"), name + ": ending"
        lines = text[:-1].split("\n")
        cols = [c for c, _ in columns[name]]
        assert lines[0].split("\t") == cols, name + ": header " + lines[0]
        quoted = ",".join('"%s"' % c for c in cols)
        marks = ",".join("?" * len(cols))
        for line in lines[1:]:
            fields = line.split("\t")
            assert len(fields) == len(cols), "%s: %r" % (name, line)
            db.execute('insert into "%s" (%s) values (%s)' % (name, quoted, marks), fields)
        for col, typ in columns[name]:
            if typ == "INTEGER":
                bad = db.execute('select count(*) from "%s" where typeof("%s")<>\'integer\''
                                 % (name, col)).fetchone()[0]
                assert bad == 0, "%s.%s: %d values are not integers" % (name, col, bad)
    for name in TRANSIENT_TABLES:
        assert not os.path.exists(os.path.join(out_dir, name + ".tsv")), name + " is transient"
    return db


# ---------------------------------------------------------------- checks

CAPTIONS = ["F.C. BARCELONA", "BM CIUDAD REAL", "CAJA ESPAÑA ADEMAR DE LEÓN",
            "PORTLAND SAN ANTONIO", "BM VALLADOLID", "BM ALTEA", "CAJA CANTABRIA", "BM VALENCIA",
            "BM GRANOLLERS", "S.D. TEUCRO", "FRG. MORRAZO CANGAS", "C.D. BIDASOA",
            "BARAKALDO UPV", "OCTAVIO PILOTES POSADA", "J.D. ARRATE", "ALMERIA 2005"]


def check(db):
    """Asserts every rule of the seed that the game relies on."""
    q = lambda sql, *a: db.execute(sql, a).fetchall()
    one = lambda sql, *a: db.execute(sql, a).fetchone()[0]

    # Clubs.
    clubs = {r[0]: r[1:] for r in q("select idequipo, NombreEquipo, codpais, categoria from equipos")}
    assert sorted(clubs) == list(range(1, 86)), "equipos ids"
    assert len({fold(c[0]) for c in clubs.values()}) == 85, "club names not unique"
    for cid, caption in enumerate(CAPTIONS, start=1):
        name, pais, cat = clubs[cid]
        assert name.upper() == caption and fold(name) == fold(caption), name
        assert pais == 1 and 1 <= cat <= 4, name
    assert sorted(c for c in range(1, 17) if clubs[c][2] == 1) == [1, 2, 3, 4, 5]
    for cat in (2, 3, 4):
        assert sum(clubs[c][2] == cat for c in range(1, 17)) >= 2, "league class %d" % cat
    for pais in range(1, 19):
        assert sum(clubs[c][1] == pais for c in range(17, 84)) >= 3, "country %d" % pais
    assert all(1 <= clubs[c][2] <= 4 for c in range(17, 84))
    assert clubs[84] == ("Juveniles", 0, 5) and clubs[85] == ("Jugadores Libres", 0, 5)

    # Players.
    n = one("select count(*) from jugadores")
    assert 1300 <= n <= 1400 and one("select max(idjugador) from jugadores") == n, "player ids"
    assert one("select min(idjugador) from jugadores") == 1
    assert one("select count(*) from jugadores where idequipo not between 1 and 85") == 0
    placeholders = ",".join("?" * len(POSITIONS))
    assert one("select count(*) from jugadores where Posicion not in (%s)" % placeholders,
               *POSITIONS) == 0, "position names"
    assert one("select count(*) from jugadores where Nacionalidad not in (%s)"
               % ",".join("?" * len(NATIONALITIES)), *NATIONALITIES) == 0, "nationalities"
    for cid in range(1, 86):
        pos = dict(q("select Posicion, count(*) from jugadores where idequipo=? "
                     "group by Posicion", cid))
        size = sum(pos.values())
        lo, hi = ((15, 18) if cid <= 16 else (13, 16) if cid <= 83
                  else (30, 40) if cid == YOUTH_POOL else (15, 25))
        assert lo <= size <= hi, "club %d has %d players" % (cid, size)
        assert len(pos) == 7, "club %d lacks a position" % cid
        if cid <= 16:
            assert pos["Portero"] >= 2, "club %d keepers" % cid
        if cid == 84:
            assert min(pos.values()) >= 3, "youth positions"
        if cid <= 83:
            # One clear best per position: a rival then fields his own seven.
            ties = q("select Posicion from jugadores j where idequipo=? and Media="
                     "(select max(Media) from jugadores where idequipo=j.idequipo "
                     "and Posicion=j.Posicion) group by Posicion having count(*)>1", cid)
            assert not ties, "club %d tied best %s" % (cid, ties)
        assert one("select count(distinct Dorsal) from jugadores where idequipo=?", cid) == size
    assert one("select count(*) from jugadores where Dorsal not between 1 and 99") == 0
    assert one("select count(*) from jugadores where idequipo<84 and Edad not between 17 and 36") == 0
    assert one("select count(*) from jugadores where idequipo=84 and Edad not between 16 and 19") == 0
    assert one("select count(*) from jugadores where idequipo=85 and Edad not between 17 and 36") == 0
    assert one("select count(*) from jugadores where Media not between 45 and 92") == 0
    assert one("select count(*) from jugadores where idequipo>=84 and Media not between 50 and 70") == 0
    assert one("select count(*) from jugadores where Ficha not between 15000 and 450000 "
               "or Ficha % 100 <> 0 or Clausula_Recision % 100 <> 0 "
               "or Clausula_Recision < 3*Ficha or Clausula_Recision > 6*Ficha "
               "or Clausula_Recision > 2147483647") == 0, "money"
    assert one("select count(*) from jugadores where venta+libre1+libre2+libre3 <> 0") == 0
    assert one('select count(*) from jugadores where "Años_Contrato" not between 1 and 5') == 0
    assert one("select count(*) from jugadores where Lesiones not in (select idlesion from lesiones)") == 0
    assert 1 <= one("select count(*) from jugadores where Lesiones<>0") <= 10, "injured"
    assert one("select count(*) from jugadores where Lesiones<>0 and Lesiones not between 1 and 3") == 0
    names = q("select Nombre, Apellidos, Nacionalidad from jugadores")
    names += [(a, b, None) for a, b in q("select nombre, apellidos from entrenadores")]
    assert len({fold(a + " " + b) for a, b, _ in names}) == len(names), "repeated full name"
    for first, last, nat in names:
        assert first and last and fold(first + " " + last.split()[0]) not in REAL_FOLDED, last
        if nat == "España":
            assert len(last.split()) == 2, "Spanish player without two surnames: " + last
    for cid, dup in q("select idequipo, Nombre || ' ' || Apellidos from jugadores group by "
                      "idequipo, Nombre, substr(Apellidos || ' ', 1, instr(Apellidos || ' ', ' '))"
                      " having count(*) > 1"):
        raise AssertionError("club %d has two players called like %s" % (cid, dup))
    # Clubs abroad field mostly players of their own country.
    for cid in range(17, 84):
        home = COUNTRIES[clubs[cid][1]]
        share = one("select avg(Nacionalidad=?) from jugadores where idequipo=?", home, cid)
        assert share >= 0.6, "club %d has too few home players" % cid

    # Strength: the league's classes in order, each club's rounded average its own.
    strength = {}
    for cid in range(1, 17):
        total, count = q("select sum(Media), count(*) from jugadores where idequipo=?", cid)[0]
        strength[cid] = total / count
    by_class = {}
    for cid, s in strength.items():
        by_class.setdefault(clubs[cid][2], []).append(s)
    for cat in (1, 2, 3):
        assert min(by_class[cat]) > max(by_class[cat + 1]), "class %d not above %d" % (cat, cat + 1)
    assert len({round(s) for s in strength.values()}) == 16, "two league clubs of equal strength"
    assert 76 <= sum(by_class[1]) / len(by_class[1]) <= 80
    # Abroad too, a higher class is never the weaker squad.
    avg = dict(q("select idequipo, avg(Media) from jugadores where idequipo<84 group by idequipo"))
    for cat in (1, 2, 3):
        hi = [avg[c] for c in range(1, 84) if clubs[c][2] == cat]
        lo = [avg[c] for c in range(1, 84) if clubs[c][2] == cat + 1]
        assert min(hi) >= max(lo), "class %d against %d" % (cat, cat + 1)

    # Injuries, budgets, stadiums, prices, broadcasters, coaches.
    assert q("select nombre_lesion from lesiones where idlesion=0") == [("Ninguna",)]
    assert one("select count(*) from lesiones") >= 10
    assert [r[0] for r in q("select idlesion from lesiones")] == list(range(one("select count(*) from lesiones")))
    budgets = dict(q("select idequipo, presupuesto from infoteams"))
    assert sorted(budgets) == list(range(1, 17))
    assert all(1500000 <= b <= 9000000 for b in budgets.values())
    for cat in (1, 2, 3):
        assert min(budgets[c] for c in budgets if clubs[c][2] == cat) > \
            max(budgets[c] for c in budgets if clubs[c][2] == cat + 1), "budget class %d" % cat
    assert [r[0] for r in q("select idequipo from estadios")] == list(range(1, 17))
    assert one("select count(*) from estadios where Nombre='' or min_gradas not between 3000 and 9000 "
               "or parking not in (0,1) or tienda not in (0,1) or cafeteria not in (0,1) "
               "or calefaccion not in (0,1) or focos not between 0 and 3 "
               "or enfermeria not between 0 and 3 or marcadores not between 1 and 3 "
               "or accesos not between 1 and 3 or lavabos not between 1 and 3") == 0, "estadios"
    assert q("select * from entradas") == [(1, 10), (2, 1000), (3, 1), (4, 1)]
    tv = q("select idTelevision, NombreTV from televisiones")
    assert [r[0] for r in tv] == list(range(1, 8)) and len({fold(r[1]) for r in tv}) == 7
    assert all(r[1] for r in tv)
    coaches = q("select * from entrenadores")
    assert [r[0] for r in coaches] == list(range(1, 17))
    assert all(r[3:] == (5, 5, 5) and r[1] and r[2] for r in coaches)

    # League table: last season's order follows strength, champion 16.
    rows = q("select * from asobal")
    assert [r[0] for r in rows] == list(range(1, 17))
    assert all(r[1:7] == (0,) * 6 for r in rows)
    assert sorted(r[7] for r in rows) == list(range(1, 17))
    assert all(r[8] == 17 - r[7] for r in rows)
    ranked = sorted(rows, key=lambda r: strength[r[0]])
    assert [r[7] for r in ranked] == list(range(1, 17)), "puesto_anterior against strength"

    # Fixtures.
    fx = q("select * from liga_asobal")          # no order: must come in round order
    assert len(fx) == 240
    assert [r[0] for r in fx] == list(range(FIRST_MATCH_ID, FIRST_MATCH_ID + 240))
    assert [r[1] for r in fx] == sorted(r[1] for r in fx)
    assert all(r[4] == 0 and r[5] == 0 for r in fx)
    pairs = set()
    home_runs = {p: "" for p in range(1, 17)}
    dates = []
    for j in range(1, 31):
        games = [r for r in fx if r[1] == j]
        assert len(games) == 8, "round %d" % j
        sides = sorted([g[2] for g in games] + [g[3] for g in games])
        assert sides == list(range(1, 17)), "round %d positions" % j
        assert len({g[6] for g in games}) == 1, "round %d dates" % j
        dates.append(datetime.date.fromisoformat(games[0][6]))
        for g in games:
            pairs.add((g[2], g[3]))
            home_runs[g[2]] += "H"
            home_runs[g[3]] += "A"
        if j > 15:
            mirror = {(g[3], g[2]) for g in fx if g[1] == j - 15}
            assert {(g[2], g[3]) for g in games} == mirror, "round %d mirrors %d" % (j, j - 15)
    assert len(pairs) == 240, "each pair twice, each side at home once"
    for p, s in home_runs.items():
        assert s[:15].count("H") in (7, 8), "position %d home games" % p
        assert "HHHH" not in s and "AAAA" not in s, "position %d runs" % p
    assert dates[0] == FIRST_ROUND and dates[-1] <= datetime.date(2005, 6, 30)
    assert all(d.weekday() == 5 for d in dates), "rounds on Saturdays"
    assert all(b > a for a, b in zip(dates, dates[1:]))
    assert not any(datetime.date(2004, 12, 24) <= d <= datetime.date(2005, 1, 1) for d in dates)

    # Call-up and career row.
    assert q("select * from miequipo") == [(p, 0, 0, p, "", 0, "") for p in CALL_UP]
    assert q("select * from datos_jugador") == [(0, "", "", 0, "")]


def report(db):
    print("rows:")
    for name in SEEDED_TABLES:
        print("  %-14s %5d" % (name, db.execute('select count(*) from "%s"' % name).fetchone()[0]))
    print("league strength (players, average Media, class, puesto_anterior):")
    for cid, name, cat, count, avg, place in db.execute(
            "select e.idequipo, NombreEquipo, categoria, count(*), avg(Media), puesto_anterior "
            "from equipos e join jugadores j on j.idequipo=e.idequipo "
            "join asobal a on a.teams=e.idequipo group by e.idequipo order by e.idequipo"):
        print("  %2d %-28s %2d players  %5.2f  class %d  puesto_anterior %2d"
              % (cid, name, count, avg, cat, place))


def main(argv=None):
    ap = argparse.ArgumentParser(description="Generate and check the Zarpazo seed data.")
    ap.add_argument("out_dir", nargs="?", default=os.path.join(ROOT, "content", "seed"))
    ap.add_argument("--check", action="store_true", help="only check the existing files")
    ap.add_argument("--schema", default=SCHEMA)
    ap.add_argument("--quiet", action="store_true")
    args = ap.parse_args(argv)
    if not args.check:
        columns = schema_columns(schema_db(args.schema))
        write_tsv(args.out_dir, columns, build(random.Random(SEED)))
    db = load(args.out_dir, args.schema)
    check(db)
    if not args.quiet:
        report(db)
        print("seed OK:", args.out_dir)
    return 0


if __name__ == "__main__":
    sys.exit(main())
