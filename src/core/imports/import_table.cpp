#include "imports/import_table.h"

#include "imports/lecteur_delimite.h"
#include "store/base_native.h"

#include <algorithm>

using store::Valeur;

namespace {

constexpr qint64 lignesEntreNouvelles = 5000;

Valeur texteLu(const QString &texte)
{
    return texte.isEmpty() ? Valeur() : Valeur(texte);
}

Valeur codeLu(const QString &texte)
{
    return store::convertit(Valeur(texte), store::TypeChamp::Entier);
}

/// A date of birth, with a time of day behind it in some exports.
Valeur dateLue(const QString &texte)
{
    constexpr int sansAnnee = 0; // a birthday alone is no date
    const auto fin = std::ranges::find_if(texte, [](QChar c) { return c == u' ' || c == u'T'; });
    const QDate date = store::LireDate(QStringView(texte.begin(), fin), sansAnnee);
    return date.isValid() ? Valeur(date) : Valeur();
}

/// M or F out of the letter, the word or the form of address.
Valeur sexeLu(const QString &texte)
{
    const QString debut = texte.left(2).toUpper();
    if (debut.startsWith(u'F') || debut == u"MM" || debut == u"ML" || texte.startsWith(u"mad", Qt::CaseInsensitive))
        return u"F"_qs;
    if (debut.startsWith(u'M') || debut.startsWith(u'H'))
        return u"M"_qs;
    return texteLu(texte);
}

/// \p titre in small letters without accents, and without all that is no letter or digit.
QString reduit(const QString &titre)
{
    QString lettres;
    for (const QChar caractere : titre.normalized(QString::NormalizationForm_KD)) {
        if (caractere.isLetterOrNumber())
            lettres += caractere.toLower();
    }
    return lettres;
}

/// Place of \p colonne in the list, -1 when it has none.
qsizetype place(const ColonneImportee &colonne, const QStringList &titresReduits)
{
    for (const QString &titre : colonne.titres) {
        if (const qsizetype trouve = titresReduits.indexOf(titre); trouve >= 0)
            return trouve;
    }
    return -1;
}

/// A column that the list has: where it stands there, and its place among the parameters of the statement.
struct Appariement
{
    const ColonneImportee *colonne;
    std::size_t place;
};

std::vector<Appariement> apparie(const TableImportee &importee, const QStringList &titres)
{
    QStringList reduits;
    for (const QString &titre : titres)
        reduits += reduit(titre);
    std::vector<Appariement> trouvees;
    for (const ColonneImportee &colonne : importee.colonnes) {
        if (const qsizetype trouve = place(colonne, reduits); trouve >= 0)
            trouvees.push_back({&colonne, std::size_t(trouve)});
    }
    if (trouvees.empty() || trouvees.front().colonne != &importee.colonnes.front())
        throw recu::ErreurLecture(
            u"Le fichier %1 n'a pas de colonne %2."_qs.arg(importee.fichier, importee.colonnes.front().champ));
    return trouvees;
}

QString insertion(const QString &table, const std::vector<Appariement> &colonnes)
{
    QStringList champs;
    for (const Appariement &appariement : colonnes)
        champs += u'[' + appariement.colonne->champ + u']';
    const QStringList marques(champs.size(), u"?"_qs);
    return u"insert into [%1] (%2) values (%3)"_qs.arg(table, champs.join(u", "), marques.join(u", "));
}

} // namespace

const TableImportee &TableJoueurs()
{
    static const TableImportee table{
        u"joueurs"_qs,
        u"joueurs.txt"_qs,
        {{u"nom"_qs, {u"nom"_qs, u"nomjoueur"_qs, u"nomlicencie"_qs, u"nomdefamille"_qs, u"nomusage"_qs}, texteLu},
         {u"prenom"_qs, {u"prenom"_qs, u"prenomjoueur"_qs, u"prenomlicencie"_qs}, texteLu},
         {u"licence"_qs,
          {u"licence"_qs, u"nlicence"_qs, u"nolicence"_qs, u"numlicence"_qs, u"numerolicence"_qs, u"numerodelicence"_qs,
           u"ndelicence"_qs, u"codelicence"_qs},
          texteLu},
         {u"societe"_qs,
          {u"societe"_qs, u"nomclub"_qs, u"nomduclub"_qs, u"clubnom"_qs, u"libelleclub"_qs, u"libclub"_qs,
           u"nomsociete"_qs, u"association"_qs, u"club"_qs},
          texteLu},
         {u"sexe"_qs, {u"sexe"_qs, u"genre"_qs, u"civilite"_qs}, sexeLu},
         {u"ne"_qs,
          {u"ne"_qs, u"nele"_qs, u"neele"_qs, u"datedenaissance"_qs, u"datenaissance"_qs, u"datenaiss"_qs,
           u"naissance"_qs, u"ddn"_qs},
          dateLue}}};
    return table;
}

const TableImportee &TableClubs()
{
    static const TableImportee table{u"clubs"_qs,
                                     u"clubs.txt"_qs,
                                     {{u"societe"_qs,
                                       {u"societe"_qs, u"nomclub"_qs, u"nomduclub"_qs, u"clubnom"_qs, u"libelleclub"_qs,
                                        u"libclub"_qs, u"nomsociete"_qs, u"association"_qs, u"nom"_qs, u"libelle"_qs,
                                        u"club"_qs},
                                       texteLu},
                                      {u"codesoc"_qs,
                                       {u"codesoc"_qs, u"codeclub"_qs, u"codesociete"_qs, u"nclub"_qs, u"noclub"_qs,
                                        u"numclub"_qs, u"numeroclub"_qs, u"numeroduclub"_qs, u"idclub"_qs, u"code"_qs,
                                        u"numero"_qs, u"num"_qs},
                                       codeLu}}};
    return table;
}

qint64 ImporteTable(store::Database &base, const TableImportee &importee, QIODevice &source,
                    const std::function<void(qint64)> &progres)
{
    recu::LecteurDelimite lecteur(source);
    const std::vector<Appariement> colonnes = apparie(importee, lecteur.colonnes());
    qint64 lignes = 0;
    base.EcritEnGroupe([&] {
        store::Instruction ajout(base.native(), insertion(importee.table, colonnes));
        while (lecteur.avance()) {
            for (std::size_t i = 0; i < colonnes.size(); ++i)
                ajout.lie(int(i) + 1, colonnes[i].colonne->lit(lecteur.champ(colonnes[i].place)));
            ajout.avance();
            if (++lignes % lignesEntreNouvelles == 0)
                progres(lignes);
        }
    });
    return lignes;
}
