#include "outils/listes_publiques.h"

#include "partage/routines.h"

#include <algorithm>

using donnees::Rencontre;
using Encre = CellulePublique::Encre;

namespace {

/// Longer names are made smaller: one of them alone would make all letters of the page small.
constexpr double plafondClub = 9;
const QString tiret = u"–"_qs;
const QString large = u"\u2003"_qs; // an em space

CellulePublique numero(qint64 equipe, Encre encre = Encre::Normale)
{
    return {QString::number(equipe), true, encre};
}

CellulePublique club(const EtatPublic &etat, qint64 equipe)
{
    return {etat.clubs.value(int(equipe)), false, Encre::Discrete};
}

struct Scores
{
    QString premier;
    QString second;
};

/// A match won without points being told has none to show.
Scores scores(const Partage &partage, const Rencontre &rencontre)
{
    if (!rencontre.scoreReel)
        return {};
    return {TexteScore(partage, rencontre.score1), TexteScore(partage, rencontre.score2)};
}

} // namespace

QString ListesPubliques::titre(const EtatPublic &etat, GenrePage genre)
{
    switch (genre) {
    case GenrePage::Tirage:
        return tr("Tirage du tour %1").arg(etat.rencontres.tour);
    case GenrePage::Attendues:
        return tr("Rencontres attendues");
    case GenrePage::Resultats:
        return tr("Derniers résultats");
    case GenrePage::Classement:
        return tr("Classement");
    case GenrePage::Horloge:
        break;
    }
    return etat.concours == 0 ? QString() : etat.lieu;
}

QString ListesPubliques::drapeau(const EtatPublic &etat)
{
    if (etat.concours == 0)
        return {};
    if (etat.rencontres.tour == 0)
        return tr("%n équipe(s) inscrite(s)", nullptr, etat.equipes);
    if (etat.termine())
        return tr("Concours terminé");
    const QString tour = tr("Tour %1 / %2").arg(etat.rencontres.tour).arg(std::max(etat.tours, etat.rencontres.tour));
    const int manque = int(etat.rencontres.attendues.size());
    return manque > 0 ? tour + tr(", manque %n résultat(s)", nullptr, manque) : tour + tr(", complet");
}

QString ListesPubliques::dernierResultat(const Partage &partage, const EtatPublic &etat)
{
    if (etat.rencontres.resultats.empty())
        return {};
    const Rencontre &dernier = etat.rencontres.resultats.front();
    const auto [premier, second] = scores(partage, dernier);
    const qint64 gagnante = dernier.premiereGagne() ? dernier.equipe1 : dernier.equipe2;
    const qint64 perdante = dernier.premiereGagne() ? dernier.equipe2 : dernier.equipe1;
    QString phrase = tr("Dernier résultat : %1 bat %2").arg(gagnante).arg(perdante);
    if (premier.isEmpty())
        return phrase;
    return phrase + u", "_qs + (dernier.premiereGagne() ? premier + tiret + second : second + tiret + premier);
}

namespace {

ListePublique tirage(const EtatPublic &etat, const QString &exempte)
{
    ListePublique liste{.colonnes = {{Qt::AlignRight},
                                     {Qt::AlignLeft, plafondClub},
                                     {Qt::AlignHCenter},
                                     {Qt::AlignRight},
                                     {Qt::AlignLeft, plafondClub}}};
    for (const Rencontre &rencontre : etat.rencontres.tirage) {
        if (rencontre.exempt())
            liste.lignes.push_back(
                {{numero(rencontre.equipe1), club(etat, rencontre.equipe1), {}, {}, {exempte, false, Encre::Normale}}});
        else
            liste.lignes.push_back({{numero(rencontre.equipe1),
                                     club(etat, rencontre.equipe1),
                                     {tiret},
                                     numero(rencontre.equipe2),
                                     club(etat, rencontre.equipe2)}});
    }
    return liste;
}

/// Headings stand between launched matches and others only where there are both.
ListePublique attendues(const EtatPublic &etat, const QString &lancees, const QString &autres)
{
    ListePublique liste{.colonnes = {{Qt::AlignRight}, {Qt::AlignHCenter}, {Qt::AlignRight}}};
    const std::vector<Rencontre> &rencontres = etat.rencontres.attendues;
    const bool titrees = !rencontres.empty() && rencontres.front().lancee;
    for (std::size_t i = 0; i < rencontres.size(); ++i) {
        if (titrees && (i == 0 || rencontres[i - 1].lancee != rencontres[i].lancee))
            liste.lignes.push_back({.intertitre = rencontres[i].lancee ? lancees : autres});
        liste.lignes.push_back({{numero(rencontres[i].equipe1), {tiret}, numero(rencontres[i].equipe2)}});
    }
    return liste;
}

ListePublique resultats(const Partage &partage, const EtatPublic &etat)
{
    ListePublique liste{.colonnes = {{Qt::AlignRight},
                                     {Qt::AlignLeft, plafondClub},
                                     {Qt::AlignRight},
                                     {Qt::AlignHCenter},
                                     {Qt::AlignLeft},
                                     {}, // the second team stands apart from the scores
                                     {Qt::AlignRight},
                                     {Qt::AlignLeft, plafondClub}}};
    const std::size_t montres = std::min(ListesPubliques::resultatsMontres, etat.rencontres.resultats.size());
    for (const Rencontre &rencontre : std::span(etat.rencontres.resultats).first(montres)) {
        const bool premiere = rencontre.premiereGagne();
        const auto encre = [](bool gagne) { return gagne ? Encre::Gagnante : Encre::Discrete; };
        const auto [premier, second] = scores(partage, rencontre);
        CellulePublique equipe1 = numero(rencontre.equipe1, encre(premiere));
        CellulePublique equipe2 = numero(rencontre.equipe2, encre(!premiere));
        equipe1.grasse = premiere;
        equipe2.grasse = !premiere;
        liste.lignes.push_back({{equipe1,
                                 club(etat, rencontre.equipe1),
                                 {premier, premiere, encre(premiere)},
                                 {tiret},
                                 {second, !premiere, encre(!premiere)},
                                 {large},
                                 equipe2,
                                 club(etat, rencontre.equipe2)}});
    }
    return liste;
}

ListePublique classement(const EtatPublic &etat, const std::vector<CellulePublique> &entetes)
{
    ListePublique liste{.colonnes = {{Qt::AlignRight},
                                     {Qt::AlignRight},
                                     {Qt::AlignLeft, plafondClub},
                                     {Qt::AlignRight},
                                     {Qt::AlignRight}},
                        .entetes = entetes};
    for (const moteur::PlacePublique &place : etat.classement) {
        const int ecart = place.ligne.ga.value_or(0);
        liste.lignes.push_back(
            {{{place.position ? QString::number(*place.position) : tiret, false, Encre::Discrete},
              numero(place.ligne.equipe),
              club(etat, place.ligne.equipe),
              {QString::number(place.ligne.gagnées), true},
              {(ecart > 0 ? u"+"_qs : QString()) + QString::number(ecart).replace(u'-', u'−'), false}}});
    }
    return liste;
}

} // namespace

ListePublique ListesPubliques::liste(const Partage &partage, const EtatPublic &etat, GenrePage genre)
{
    ListePublique liste;
    switch (genre) {
    case GenrePage::Tirage:
        liste = tirage(etat, tr("exempte"));
        break;
    case GenrePage::Attendues:
        liste = attendues(etat, tr("Lancées"), tr("Pas encore lancées"));
        break;
    case GenrePage::Resultats:
        liste = resultats(partage, etat);
        break;
    case GenrePage::Classement: {
        const auto entete = [](const QString &texte) { return CellulePublique{texte, false, Encre::Discrete}; };
        liste = classement(etat, {{}, entete(tr("Equ.")), entete(tr("Club")), entete(tr("V")), entete(tr("+/−"))});
        break;
    }
    case GenrePage::Horloge:
        break;
    }
    liste.titre = titre(etat, genre);
    return liste;
}
