#include "maintenance/import_listes.h"

#include "fenetres/patience.h"
#include "imports/import_table.h"
#include "store/passe_erreur.h"

#include <QDir>
#include <QFile>
#include <QLocale>

namespace {

void refait(const Contexte &contexte, const TableImportee &importee)
{
    Partage &partage = contexte.partage;
    PasseErreur([&] { partage.BaseDonnees.Execute(u"delete * from "_qs + importee.table); });
    QFile fichier(QDir(partage.DossierProgramme).filePath(importee.fichier));
    if (!fichier.open(QIODevice::ReadOnly))
        return;
    const QString annonce = u"  Importation de %1....Patientez"_qs.arg(importee.fichier);
    Patience alerte(contexte, annonce);
    const auto progres = [&](qint64 lignes) {
        alerte.dit(u"%1\n  %2 lignes"_qs.arg(annonce, QLocale(QLocale::French).toString(lignes)));
    };
    try {
        ImporteTable(partage.BaseDonnees, importee, fichier, progres);
    } catch (const std::exception &) {
        // Whatever is wrong with a list, it is passed over: the empty table tells.
    }
}

} // namespace

void Torvik_mnu_ijoueur_Click(const Contexte &contexte)
{
    refait(contexte, TableJoueurs());
}

void Torvik_mnu_iclub_Click(const Contexte &contexte)
{
    refait(contexte, TableClubs());
}
