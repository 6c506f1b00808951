#include "outils/table_saison.h"

#include "partage/concours_courant.h"
#include "partage/routines.h"
#include "store/collation.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>

namespace {

/// Below 0, 0 or above 0; numbers and dates by their value, texts by the alphabet.
int compare(const QVariant &a, const QVariant &b)
{
    if (a.typeId() == QMetaType::QDate)
        return int(std::clamp<qint64>(b.toDate().daysTo(a.toDate()), -1, 1));
    if (a.typeId() == QMetaType::Int)
        return a.toInt() < b.toInt() ? -1 : int(a.toInt() > b.toInt());
    return store::CompareFrancais(a.toString(), b.toString());
}

QVariant optionnelle(std::optional<int> nombre)
{
    return nombre ? QVariant(*nombre) : QVariant();
}

/// The sums, in the order of their heads.
void ajouteSommes(std::vector<QVariant> &cellules, const LigneSaison &ligne)
{
    cellules.insert(cellules.end(),
                    {ligne.concours, ligne.parties, ligne.gagnees, ligne.pour, ligne.contre, ligne.ecart(),
                     optionnelle(ligne.meilleurePlace)});
}

QString champCsv(QString texte)
{
    static const QString formules = u"=+-@\t\r"_qs;
    bool estNombre = false;
    std::ignore = texte.toInt(&estNombre);
    if (!texte.isEmpty() && formules.contains(texte.front()) && !estNombre)
        texte.prepend(u'\'');
    if (!texte.contains(u';') && !texte.contains(u'"') && !texte.contains(u'\n') && !texte.contains(u'\r'))
        return texte;
    return u'"' + texte.replace(u"\""_qs, u"\"\""_qs) + u'"';
}

} // namespace

bool TableSaison::estNombre(int colonne) const
{
    return std::ranges::all_of(lignes, [colonne](const std::vector<QVariant> &ligne) {
        const QVariant &valeur = ligne[std::size_t(colonne)];
        return !valeur.isValid() || valeur.typeId() == QMetaType::Int;
    });
}

Qt::SortOrder TableSaison::premierOrdre(int colonne) const
{
    return estNombre(colonne) && colonne != place ? Qt::DescendingOrder : Qt::AscendingOrder;
}

void TableSaison::trie(int colonne, Qt::SortOrder ordre)
{
    std::ranges::stable_sort(lignes, [&](const std::vector<QVariant> &gauche, const std::vector<QVariant> &droite) {
        const QVariant &a = gauche[std::size_t(colonne)];
        const QVariant &b = droite[std::size_t(colonne)];
        if (!a.isValid() || !b.isValid())
            return a.isValid();
        return ordre == Qt::AscendingOrder ? compare(a, b) < 0 : compare(b, a) < 0;
    });
}

TableSaison MotsSaison::table(const Saison &saison, VueSaison vue)
{
    TableSaison table;
    const QStringList sommes{tr("Concours"), tr("Parties"), tr("Gagnées"), tr("Pour"),
                             tr("Contre"),   tr("Ecart"),   tr("Place")};
    if (vue == VueSaison::Concours) {
        table.entetes = {tr("N°"),        tr("Date"),    tr("Lieu"),  tr("Type"),
                         tr("Catégorie"), tr("Equipes"), tr("Tours"), tr("Parties")};
        for (const ConcoursJoue &joue : saison.concours) {
            const donnees::Concours &concours = joue.concours;
            const QVariant date = concours.date.estNull() ? QVariant() : QVariant(concours.date.date());
            table.lignes.push_back({NumeroConcours(concours.numero), date, concours.lieu, concours.type,
                                    concours.categorie, joue.equipes, joue.tours, joue.parties});
        }
        return table;
    }
    const bool clubs = vue == VueSaison::Clubs;
    table.entetes = (clubs ? QStringList{tr("Club")} : QStringList{tr("Licence"), tr("Nom"), tr("Club")}) + sommes;
    for (const LigneSaison &ligne : clubs ? saison.clubs : saison.licences) {
        std::vector<QVariant> cellules{ligne.cle};
        if (!clubs)
            cellules.insert(cellules.end(), {ligne.nom, ligne.club});
        ajouteSommes(cellules, ligne);
        table.lignes.push_back(std::move(cellules));
    }
    table.place = table.colonnes() - 1;
    if (clubs) {
        table.parties = 2;
        table.gagnees = 3;
    }
    return table;
}

QString MotsSaison::resume(const Saison &saison)
{
    const auto somme = [&](int ConcoursJoue::*membre) {
        return std::accumulate(saison.concours.begin(), saison.concours.end(), 0,
                               [membre](int avant, const ConcoursJoue &joue) { return avant + joue.*membre; });
    };
    return tr("%n concours", nullptr, int(saison.concours.size())) + u", "_qs
        + tr("%n équipe(s)", nullptr, somme(&ConcoursJoue::equipes)) + u", "_qs
        + tr("%n partie(s)", nullptr, somme(&ConcoursJoue::parties)) + u", "_qs
        + tr("%n club(s)", nullptr, int(saison.clubs.size())) + u", "_qs
        + tr("%n licence(s)", nullptr, int(saison.licences.size()));
}

QString MotsSaison::texte(const Partage &partage, const QVariant &valeur)
{
    return valeur.typeId() == QMetaType::QDate ? FormateDate(valeur.toDate(), partage.mes(117)) : valeur.toString();
}

QString TexteTabule(const QStringList &entetes, const std::vector<QStringList> &lignes)
{
    static const QRegularExpression separateurs(u"[\\t\\r\\n]+"_qs);
    QString texte;
    const auto ajoute = [&texte](QStringList cellules) {
        texte += cellules.replaceInStrings(separateurs, u" "_qs).join(u'\t') + u'\n';
    };
    ajoute(entetes);
    for (const QStringList &ligne : lignes)
        ajoute(ligne);
    return texte;
}

QByteArray FichierCsv(const QStringList &entetes, const std::vector<QStringList> &lignes)
{
    QString texte;
    const auto ajoute = [&texte](const QStringList &champs) {
        QStringList ecrits;
        for (const QString &champ : champs)
            ecrits += champCsv(champ);
        texte += ecrits.join(u';') + u"\r\n"_qs;
    };
    ajoute(entetes);
    for (const QStringList &ligne : lignes)
        ajoute(ligne);
    return QByteArrayLiteral("\xEF\xBB\xBF") + texte.toUtf8();
}
