#include "outils/mots_copies.h"

#include "partage/routines.h"

QString MotsCopies::moment(const Partage &partage, const Copie &copie)
{
    return FormateDate(copie.jour, partage.mes(117)) + copie.heure.toString(u"  HH:mm:ss"_qs);
}

QString MotsCopies::raison(std::optional<RaisonCopie> raison)
{
    if (!raison)
        return tr("inconnue");
    switch (*raison) {
    case RaisonCopie::Depart:
        return tr("départ du programme");
    case RaisonCopie::Purge:
        return tr("remise à zéro");
    case RaisonCopie::Suppression:
        return tr("suppression");
    case RaisonCopie::Tirage:
        return tr("nouveau tirage");
    case RaisonCopie::Annulation:
        return tr("annulation");
    case RaisonCopie::Restauration:
        return tr("restauration");
    case RaisonCopie::Demande:
        return tr("à la demande");
    case RaisonCopie::Secours:
        return tr("fichier disparu ou changé");
    }
    return {};
}

QString MotsCopies::ecart(const Inventaire &copie, const Inventaire &base)
{
    QStringList parties;
    const auto compare = [&parties](qint64 difference, const auto &plus, const auto &moins) {
        if (difference != 0)
            parties += difference > 0 ? plus(int(difference)) : moins(int(-difference));
    };
    compare(
        qint64(copie.concours.size()) - qint64(base.concours.size()),
        [](int n) { return tr("%n concours de plus", nullptr, n); },
        [](int n) { return tr("%n concours de moins", nullptr, n); });
    compare(
        copie.equipes() - base.equipes(), [](int n) { return tr("%n équipe(s) de plus", nullptr, n); },
        [](int n) { return tr("%n équipe(s) de moins", nullptr, n); });
    compare(
        copie.resultats() - base.resultats(), [](int n) { return tr("%n résultat(s) de plus", nullptr, n); },
        [](int n) { return tr("%n résultat(s) de moins", nullptr, n); });
    compare(
        copie.joueurs - base.joueurs, [](int n) { return tr("%n joueur(s) connu(s) de plus", nullptr, n); },
        [](int n) { return tr("%n joueur(s) connu(s) de moins", nullptr, n); });
    compare(
        copie.clubs - base.clubs, [](int n) { return tr("%n club(s) de plus", nullptr, n); },
        [](int n) { return tr("%n club(s) de moins", nullptr, n); });
    return parties.join(u", "_qs);
}

QString MotsCopies::contenu(const Inventaire &inventaire)
{
    return QStringList{tr("%n concours", nullptr, int(inventaire.concours.size())),
                       tr("%n équipe(s)", nullptr, int(inventaire.equipes())),
                       tr("%n résultat(s)", nullptr, int(inventaire.resultats()))}
        .join(u", "_qs);
}

QStringList MotsCopies::entetes()
{
    return {tr("Copie du"), tr("Raison"), tr("Concours"), tr("Equipes"), tr("Résultats")};
}

QStringList MotsCopies::ligne(const Partage &partage, const Copie &copie, const Inventaire &inventaire)
{
    return {moment(partage, copie), raison(copie.raison), QString::number(inventaire.concours.size()),
            QString::number(inventaire.equipes()), QString::number(inventaire.resultats())};
}
