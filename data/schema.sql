-- The base file: tables, indexes and defaults. Must run on SQLite 3.15.
--
-- What the store expects of it:
--   * a column is INTEGER, REAL, TEXT, BOOLEAN (-1 or 0) or DATE (text yyyy-MM-dd); every text sorts by FRANCAIS,
--     a collation that the store registers;
--   * index names are unique in a whole SQLite file, so index X of table T is named "T.X".

pragma application_id = 1448374133;  -- "VTou"; a base that is written into counts its journals on from here
pragma user_version = 1;

-- autoincrement: the number of a deleted competition never comes back.
create table concours (
    concours     INTEGER PRIMARY KEY AUTOINCREMENT,
    date         DATE,
    lieu         TEXT COLLATE FRANCAIS,
    organisateur TEXT COLLATE FRANCAIS,
    type         TEXT COLLATE FRANCAIS,
    categorie    TEXT COLLATE FRANCAIS,
    tourpri      INTEGER DEFAULT 0,
    nbtours_a    INTEGER DEFAULT 0,
    nbtours_b    INTEGER DEFAULT 0,
    nbtours_c    INTEGER DEFAULT 0,
    repeche      BOOLEAN DEFAULT 0,
    pro          BOOLEAN DEFAULT 0,
    abc          INTEGER DEFAULT 0,
    basculebc    INTEGER DEFAULT 0
);
create unique index "concours.primarykey" on concours (concours);

-- One row a team member; competition 0 holds the pre-registered players.
create table equipes (
    concours INTEGER DEFAULT 0,
    equipe   INTEGER DEFAULT 0,
    doublon  INTEGER,
    nom      TEXT COLLATE FRANCAIS,
    prenom   TEXT COLLATE FRANCAIS,
    licence  TEXT COLLATE FRANCAIS,
    societe  TEXT COLLATE FRANCAIS,
    sexe     TEXT COLLATE FRANCAIS,
    ne       DATE,
    tableau  TEXT COLLATE FRANCAIS,
    engage   INTEGER DEFAULT 0
);
create unique index "equipes.PrimaryKey" on equipes (concours, equipe, doublon);
create index "equipes.engage" on equipes (licence, concours);
create index "equipes.licence" on equipes (licence);

-- A member without a place takes the next one of its team, so that a copied competition keeps whole teams.
create trigger "equipes.doublon" after insert on equipes when new.doublon is null
begin
    update equipes
    set doublon = (select coalesce(max(doublon) + 1, 0) from equipes
                   where concours = new.concours and equipe = new.equipe)
    where rowid = new.rowid;
end;

create table evolution (
    concours   INTEGER DEFAULT 0,
    equipe     INTEGER DEFAULT 0,
    principal  INTEGER DEFAULT 0,
    complement INTEGER DEFAULT 0,
    consolante INTEGER DEFAULT 0
);
create unique index "evolution.PrimaryKey" on evolution (concours, equipe);

-- Null scores mean that the match is still pending; rencontre must count even where a draw does not give it.
create table scores (
    concours   INTEGER DEFAULT 0,
    tableau    INTEGER DEFAULT 0,
    tour       INTEGER DEFAULT 0,
    rencontre  INTEGER DEFAULT 0,
    Equipe_1   INTEGER DEFAULT 0,
    Equipe_2   INTEGER DEFAULT 0,
    score_1    INTEGER DEFAULT NULL,
    score_2    INTEGER DEFAULT NULL,
    score_reel BOOLEAN DEFAULT 0,
    lancee     BOOLEAN DEFAULT 0,
    repechage  INTEGER DEFAULT NULL
);
create index "scores.tirage" on scores (concours, tableau, tour);
create index "scores.Equipes" on scores (concours, tableau, tour, Equipe_1, Equipe_2);
create index "scores.EquipeKey2" on scores (concours, tableau, tour, Equipe_2);

-- Work table of the ranking, one competition at a time.
create table tbclass (
    Equipe    INTEGER DEFAULT 0,
    gagnées   INTEGER DEFAULT 0,
    perdues   INTEGER DEFAULT 0,
    pp        INTEGER DEFAULT NULL,
    pc        INTEGER DEFAULT NULL,
    ga        INTEGER DEFAULT NULL,
    pt        INTEGER DEFAULT 0,
    concours  INTEGER DEFAULT 0,
    repechage INTEGER DEFAULT NULL,
    alea      INTEGER DEFAULT 0
);
create unique index "tbclass.primarykey" on tbclass (Equipe);
create index "tbclass.rankkey" on tbclass (pt desc, ga desc, Equipe);
create index "tbclass.aleakey" on tbclass (pt desc, alea desc, Equipe);

-- Nothing but deletions ever touches these two.
create table tnequipes (
    concours INTEGER DEFAULT 0,
    tableau  INTEGER DEFAULT 0,
    equipe   INTEGER DEFAULT 0
);
create table tirages_pro (
    concours INTEGER DEFAULT 0,
    tableau  INTEGER DEFAULT 0,
    equipe   INTEGER DEFAULT 0
);

create table societes (
    societe TEXT COLLATE FRANCAIS,
    codesoc INTEGER DEFAULT NULL
);
create unique index "societes.nomsoc" on societes (societe);

create table typconcours (
    lang      INTEGER DEFAULT 0,
    type      TEXT COLLATE FRANCAIS,
    Libelle   TEXT COLLATE FRANCAIS,
    Nbjoueurs INTEGER DEFAULT 0
);
create index "typconcours.Primarykey" on typconcours (type, lang);

create table catégories (
    lang    INTEGER DEFAULT 0,
    Libelle TEXT COLLATE FRANCAIS
);

create table traduc (
    numero      INTEGER DEFAULT 0,
    traducteur  TEXT COLLATE FRANCAIS,
    icone       TEXT COLLATE FRANCAIS,
    designation TEXT COLLATE FRANCAIS,
    actif       BOOLEAN DEFAULT 0
);
create index "traduc.alpha" on traduc (designation);
create unique index "traduc.num" on traduc (numero);

create table langues (
    lang INTEGER DEFAULT 0,
    num  INTEGER DEFAULT 0,
    mes  TEXT COLLATE FRANCAIS
);

-- Staging tables of the imports from text files.
create table joueurs (
    licence TEXT COLLATE FRANCAIS,
    nom     TEXT COLLATE FRANCAIS,
    prenom  TEXT COLLATE FRANCAIS,
    societe TEXT COLLATE FRANCAIS,
    sexe    TEXT COLLATE FRANCAIS,
    ne      DATE
);
create table clubs (
    codesoc INTEGER DEFAULT NULL,
    societe TEXT COLLATE FRANCAIS
);
