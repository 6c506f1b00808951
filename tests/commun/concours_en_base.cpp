#include "commun/concours_en_base.h"

#include "engine/clubs.h"

#include <algorithm>

using store::Instruction;
using store::Valeur;

namespace {

void ajoute(store::Database &base, const QString &sql, std::initializer_list<Valeur> valeurs)
{
    Instruction instruction(base.native(), sql);
    int indice = 0;
    for (const Valeur &valeur : valeurs)
        instruction.lie(++indice, valeur);
    instruction.avance();
}

int joueursParEquipe(const QString &type)
{
    return type.startsWith(u'1') ? 2 : type.startsWith(u'2') ? 3 : 1;
}

} // namespace

std::vector<moteur::EquipeInscrite> equipesDeClubs(int nombre)
{
    std::vector<moteur::EquipeInscrite> equipes;
    for (int equipe = 1; equipe <= nombre; ++equipe)
        equipes.push_back({equipe, u"Club %1"_qs.arg(equipe)});
    return equipes;
}

std::vector<moteur::EquipeInscrite> equipesMelangees(int nombre, const Melange &melange, std::mt19937 &sort)
{
    const auto chance = [&sort](int pourcent) { return int(sort() % 100) < pourcent; };
    std::vector<moteur::EquipeInscrite> equipes;
    for (int equipe = 1; equipe <= nombre; ++equipe) {
        QString club = u"Pétanque de Sète"_qs;
        if (!chance(melange.pourcentHote))
            club = u"Boule %1"_qs.arg(sort() % quint32(melange.clubs));
        if (melange.casseMelee && chance(40))
            club = club.toUpper();
        if (chance(melange.pourcentPanache))
            club = chance(25) ? u"*PANACHÉE"_qs : moteur::clubPanache.toString();
        if (chance(melange.pourcentSans))
            club.clear();
        equipes.push_back({equipe, club});
    }
    return equipes;
}

qint32 poseConcours(store::Database &base, const ConcoursInscrit &inscrit)
{
    qint32 numero = 0;
    base.EcritEnGroupe([&] {
        ajoute(base,
               u"insert into concours (date, lieu, organisateur, type, categorie, repeche, pro) "
               u"values ('2026-07-14', ?, 'La Boule', ?, ?, ?, -1)"_qs,
               {inscrit.lieu, inscrit.type, inscrit.categorie, inscrit.repeche ? -1 : 0});
        numero = qint32(base.native().dernierRowid());
        for (const auto &[equipe, club] : inscrit.equipes) {
            for (int place = 0; place < joueursParEquipe(inscrit.type); ++place)
                poseMembre(base, numero, equipe, place,
                           {u"NOM%1"_qs.arg(equipe), u"P%1"_qs.arg(place), u"L%1-%2"_qs.arg(equipe).arg(place),
                            place == 0 || inscrit.clubDesAutres.isEmpty() ? club : inscrit.clubDesAutres});
            ajoute(base, u"insert into evolution (concours, equipe, principal, complement) values (?, ?, 1, 0)"_qs,
                   {numero, equipe});
        }
    });
    return numero;
}

void poseMembre(store::Database &base, qint32 concours, qint64 equipe, int place, const donnees::Membre &membre)
{
    ajoute(base,
           u"insert into equipes (concours, equipe, doublon, nom, prenom, licence, societe, tableau, engage) "_qs
               + (concours == donnees::fichierJoueurs ? u"values (?, ?, ?, ?, ?, ?, ?, null, 0)"_qs
                                                      : u"values (?, ?, ?, ?, ?, ?, ?, 'A', 1)"_qs),
           {concours, equipe, place, membre.nom, membre.prenom, membre.licence, membre.club});
}

void poseRencontres(store::Database &base, qint32 concours, const std::vector<moteur::Partie> &rencontres)
{
    base.EcritEnGroupe([&] {
        int tours = 0;
        for (const moteur::Partie &r : rencontres) {
            ajoute(base,
                   u"insert into scores (concours, tableau, tour, rencontre, equipe_1, equipe_2, "
                   u"score_1, score_2, score_reel, repechage) values (?, 1, ?, ?, ?, ?, ?, ?, -1, ?)"_qs,
                   {concours, r.tour, r.rencontre, r.equipe1, r.equipe2, r.score1, r.score2, r.repechage});
            tours = std::max(tours, r.tour);
        }
        ajoute(base, u"update concours set tourpri = ? where concours = ?"_qs, {tours, concours});
    });
}
