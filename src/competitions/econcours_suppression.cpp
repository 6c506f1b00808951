#include "competitions/duplication.h"
#include "competitions/econcours.h"

#include "app/routines.h"
#include "platform/sablier.h"
#include "ui_econcours.h"

using store::Recordset;

// What touches a competition as a whole: its copy and its removal.

void Econcours::Dupliquer_Click()
{
    DupliqueConcours(contexte(), *this);
}

void Econcours::Supprimer_Click()
{
    Recordset concours = partage().BaseDonnees.OpenRecordset(u"Concours", store::dbOpenTable);
    concours.Index(u"PrimaryKey");
    concours.Seek(u"=", {m_ui->référence->currentText()});
    if (concours.NoMatch()) {
        videSaisie();
        SetFocus(m_ui->Text2);
        return;
    }
    if (MsgBox(mes(54) + u' ' + mes(55) + u"\r\n"_qs + mes(96), vbYesNo) != ReponseBoite::Oui)
        return;
    {
        const Sablier sablier;
        GardeUneCopie(contexte());
        supprimeConcours(concours);
    }
    videSaisie();
    relitReferences();
    SetFocus(m_ui->Text2);
}

/// Removes the current row of \p concours and everything that hangs on it.
void Econcours::supprimeConcours(Recordset &concours)
{
    const QString numero = concours[u"concours"].texte();
    QStringList tables{u"Equipes"_qs, u"evolution"_qs, u"scores"_qs};
    if (concours[u"pro"].booleen())
        tables << u"tnequipes"_qs << u"tirages_pro"_qs;
    partage().BaseDonnees.EcritEnGroupe([&] {
        for (const QString &table : std::as_const(tables))
            partage().BaseDonnees.Execute(u"delete * from %1 where concours = %2"_qs.arg(table, numero));
        concours.Delete();
    });
}

/// The list follows the removal; the number proposed stays, even where its competition is the one that went.
void Econcours::relitReferences()
{
    Recordset restants = partage().BaseDonnees.OpenRecordset(u"SELECT * FROM [Concours] order by [concours]");
    m_ui->référence->clear();
    if (restants.Eof()) {
        majrefconcours();
        return;
    }
    for (; !restants.Eof(); restants.MoveNext())
        m_ui->référence->addItem(ZeroPad(restants[u"Concours"].entier(), largeurReference));
    poseTexte(m_ui->référence, ZeroPad(m_refConcours, largeurReference));
}
