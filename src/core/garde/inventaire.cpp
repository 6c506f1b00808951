#include "garde/inventaire.h"

#include "partage/base.h"
#include "store/preuve.h"
#include "store/schema.h"

#include <numeric>

using store::BaseNative;
using store::Instruction;

namespace {

// A round may be drawn in several brackets, and a result wait in any: all count.
const QString requeteConcours = u"select c.concours, c.date, c.lieu, c.type,"
                                " (select count(distinct e.equipe) from equipes e where e.concours = c.concours),"
                                " (select max(s.tour) from scores s where s.concours = c.concours),"
                                " (select count(*) from scores s where s.concours = c.concours and s.Equipe_2 <> 0"
                                "  and not (s.score_1 is null and s.score_2 is null))"
                                " from concours c order by c.concours"_qs;

template<typename Membre>
qint64 total(const std::vector<ConcoursTenu> &concours, Membre membre)
{
    return std::accumulate(concours.begin(), concours.end(), qint64(0),
                           [membre](qint64 somme, const ConcoursTenu &un) { return somme + un.*membre; });
}

qint64 nombre(BaseNative &base, const QString &requete)
{
    return base.valeurUnique(requete).entier();
}

} // namespace

qint64 Inventaire::equipes() const
{
    return total(concours, &ConcoursTenu::equipes);
}

qint64 Inventaire::resultats() const
{
    return total(concours, &ConcoursTenu::resultats);
}

Inventaire FaitInventaire(BaseNative &base)
{
    Inventaire inventaire;
    Instruction ligne(base, requeteConcours);
    while (ligne.avance()) {
        const store::Valeur jour = ligne.valeur(1, store::TypeChamp::Date);
        inventaire.concours.push_back({
            .numero = qint32(ligne.nombre(0)),
            .jour = jour.estNull() ? QDate() : jour.date(),
            .lieu = ligne.valeur(2).texte(),
            .type = ligne.valeur(3).texte(),
            .equipes = ligne.nombre(4),
            .tours = int(ligne.nombre(5)),
            .resultats = ligne.nombre(6),
        });
    }
    inventaire.joueurs = nombre(base, u"select count(*) from equipes where concours = 0"_qs)
        + nombre(base, u"select count(*) from joueurs"_qs);
    inventaire.clubs = nombre(base, u"select count(*) from societes"_qs);
    return inventaire;
}

Inventaire InventaireDe(const QString &fichier)
{
    BaseNative base(fichier, motDePasseBase, BaseNative::Mode::LectureSeule);
    store::verifieNature(base, store::Schema(base));
    return FaitInventaire(base);
}
