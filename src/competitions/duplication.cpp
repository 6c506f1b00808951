#include "competitions/duplication.h"

#include "app/routines.h"
#include "platform/formulaires.h"
#include "platform/sablier.h"

#include <QComboBox>

namespace {

/// Copies the competition \p n and gives the number of the copy. The statements follow each other as one group: a copy
/// is whole or not there.
qint64 copie(Partage &partage, const QString &n)
{
    store::Database &base = partage.BaseDonnees;
    qint64 copie = 0;
    base.EcritEnGroupe([&] {
        base.Execute(u"INSERT INTO Concours ( [Date], Lieu, organisateur,type,categorie,abc,tourpri,repeche,basculebc,"
                     u"nbtours_a,nbtours_b,nbtours_c,pro) select [Date], lieu,'(duplicata du %1)' , type,categorie,abc,"
                     u"0,0,0,0,0,0,pro from concours where concours= %1"_qs.arg(n));
        copie = ValeurUnique(partage, u"select max(concours) as maxc from concours"_qs).entier();
        const QString m = QString::number(copie);
        base.Execute(u"INSERT INTO equipes (equipe, societe, nom, prenom,licence, sexe, ne, tableau, engage, concours)  "
                     u"select equipe,  societe, nom, prenom, licence, sexe, ne, tableau, engage, %1 as e1 from equipes "
                     u"where concours= %2"_qs.arg(m, n));
        // A team offers its number once a member; the key lets the first through.
        const QString stades = u"INSERT INTO evolution(equipe, principal, complement, consolante, concours)  select "
                               u"equipe, %1 as E1 , %2 as E2, 0 as E3, "_qs
            + m + u" as e4 from equipes where concours= "_qs + n + u" and "_qs;
        base.Execute(stades.arg(1).arg(0) + u"(engage=1 or engage=3)"_qs);
        base.Execute(stades.arg(0).arg(-1) + u"engage=2"_qs);
        base.Execute(stades.arg(0).arg(0) + u"engage=0"_qs);
    });
    return copie;
}

} // namespace

void DupliqueConcours(const Contexte &contexte, Formulaire &formulaire)
{
    const QString n = formulaire.findChild<QComboBox *>(u"référence"_qs)->currentText().trimmed();
    const bool existe = store::EstNumerique(n)
        && !contexte.partage.BaseDonnees.OpenRecordset(u"select * from concours where concours="_qs + n).Eof();
    if (!existe) {
        contexte.boites.MsgBox(u"Vous devez selectionner un concours existant "_qs);
        return;
    }
    const qint64 m = [&] {
        const Sablier sablier;
        return copie(contexte.partage, n);
    }();
    contexte.boites.MsgBox(u"Concours dupliqué sous le numéro "_qs + QString::number(m));
    const QString nom = formulaire.Name();
    contexte.formulaires.Decharge(nom);
    contexte.formulaires.Montre(nom);
    DoEvents();
}
