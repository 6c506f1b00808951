#include "commun/concours_en_base.h"

#include <algorithm>

using store::Instruction;
using store::Valeur;

namespace {

void ajoute(Instruction &instruction, std::initializer_list<Valeur> valeurs)
{
    int indice = 0;
    for (const Valeur &valeur : valeurs)
        instruction.lie(++indice, valeur);
    instruction.avance();
}

} // namespace

qint32 poseConcours(store::Database &base, const ConcoursInscrit &inscrit)
{
    store::BaseNative &native = base.native();
    qint32 numero = 0;
    base.EcritEnGroupe([&] {
        Instruction concours(native,
                             u"insert into concours (date, lieu, organisateur, type, categorie, repeche, pro) "
                             u"values ('2026-07-14', 'Sète', 'La Boule', ?, 'Seniors', ?, -1)"_qs);
        ajoute(concours, {inscrit.type, inscrit.repeche ? -1 : 0});
        numero = qint32(native.dernierRowid());
        Instruction joueur(native,
                           u"insert into equipes (concours, equipe, doublon, nom, prenom, licence, societe, "
                           u"tableau, engage) values (?, ?, ?, ?, 'Camille', ?, ?, 'A', 1)"_qs);
        Instruction place(native,
                          u"insert into evolution (concours, equipe, principal, complement) "
                          u"values (?, ?, 1, 0)"_qs);
        for (const moteur::EquipeInscrite &equipe : inscrit.equipes) {
            for (int membre = 0; membre < inscrit.joueurs; ++membre)
                ajoute(joueur,
                       {numero, equipe.equipe, membre, u"Joueur %1"_qs.arg(equipe.equipe),
                        u"%1%2%3"_qs.arg(numero).arg(membre).arg(equipe.equipe, 5, 10, QChar(u'0')),
                        membre == 0 ? equipe.club : u"Club des autres membres"_qs});
            ajoute(place, {numero, equipe.equipe});
        }
    });
    return numero;
}

void poseRencontres(store::Database &base, qint32 concours, const std::vector<moteur::Partie> &rencontres)
{
    base.EcritEnGroupe([&] {
        Instruction ajout(base.native(),
                          u"insert into scores (concours, tableau, tour, rencontre, equipe_1, equipe_2, "
                          u"score_1, score_2, score_reel, repechage) "
                          u"values (?, 1, ?, ?, ?, ?, ?, ?, -1, ?)"_qs);
        int tours = 0;
        for (const moteur::Partie &r : rencontres) {
            ajoute(ajout, {concours, r.tour, r.rencontre, r.equipe1, r.equipe2, r.score1, r.score2, r.repechage});
            tours = std::max(tours, r.tour);
        }
        Instruction tour(base.native(), u"update concours set tourpri = ? where concours = ?"_qs);
        ajoute(tour, {tours, concours});
    });
}
