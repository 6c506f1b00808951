#include "registration/eequipes.h"

#include "app/routines.h"
#include "engine/clubs.h"
#include "ui_eequipes.h"

using store::Recordset;

// The entry of the members: from a licence to a name and a club.

namespace {

const QString clubPanache = moteur::clubPanache.toString();
const QString titreEnregistrement = u"Enregistrement des équipes"_qs;

} // namespace

void Eequipes::relieMembres()
{
    for (int i = 0; i < membresAffiches; ++i) {
        QLineEdit *licence = m_LicenceJ[i];
        surKeyDown(licence, [this, i](int code, int maj) { LicenceJ_KeyDown(i, code, maj); });
        surKeyDown(m_NomJ[i], [this, i](int code, int maj) { NomJ_KeyDown(i, code, maj); });
        surKeyDown(m_PrénomJ[i], [this, i](int code, int maj) { PrénomJ_KeyDown(i, code, maj); });
        surSortie(licence, [this, i] { LicenceJ_LostFocus(i); });
    }
}

int Eequipes::nombreMembres() const
{
    return std::clamp<int>(partage().NbJoueurs, 0, membresAffiches);
}

void Eequipes::montreMembres()
{
    for (int i = 0; i < membresAffiches; ++i) {
        for (QLineEdit *champ : {m_LicenceJ[i], m_NomJ[i], m_PrénomJ[i]})
            champ->setVisible(i < nombreMembres());
    }
}

void Eequipes::videMembres()
{
    for (int i = 0; i < membresAffiches; ++i) {
        for (QLineEdit *champ : {m_LicenceJ[i], m_NomJ[i], m_PrénomJ[i]})
            champ->clear();
    }
}

void Eequipes::videSaisie()
{
    m_ui->Société->clear();
    videMembres();
}

void Eequipes::afficheMembres(Recordset &equipes)
{
    for (int i = 0; i < nombreMembres() && !equipes.Eof(); ++i) {
        m_NomJ[i]->setText(equipes[u"nom"].texte());
        m_PrénomJ[i]->setText(equipes[u"prenom"].texte());
        m_LicenceJ[i]->setText(equipes[u"Licence"].texte());
        equipes.MoveNext();
    }
}

void Eequipes::NomJ_KeyDown(int Index, int KeyCode, int)
{
    if (KeyCode == Touche::Entree)
        SetFocus(m_PrénomJ[Index]);
}

void Eequipes::PrénomJ_KeyDown(int Index, int KeyCode, int)
{
    if (KeyCode != Touche::Entree)
        return;
    const int suivant = Index + 1;
    SetFocus(suivant < nombreMembres() ? m_LicenceJ[suivant] : m_ui->Société);
}

void Eequipes::LicenceJ_LostFocus(int Index)
{
    if (!m_LicenceJ[Index]->text().isEmpty())
        LicenceJ_KeyDown(Index, Touche::Entree, 0);
}

void Eequipes::LicenceJ_KeyDown(int Index, int KeyCode, int)
{
    QLineEdit *champ = m_LicenceJ[Index];
    const QString licence = champ->text().trimmed();
    if (!Touche::Avance(KeyCode) || licence.isEmpty())
        return;
    const auto faite = sortieFaite(champ);
    std::optional<Engagement> engagement;
    PasseErreur([&] { engagement = chercheEngagement(licence, m_ui->référence->currentText().trimmed()); });
    if (engagement)
        signaleEngagement(*engagement, Index, ligne(Index));
    else
        PasseErreur([&] { chercheJoueurs(Index); });
    if (!champ->text().isEmpty())
        SetFocus(m_NomJ[Index]);
}

/// Fills in the members whose licences the store knows from any competition, and works out the club of the team.
void Eequipes::chercheJoueurs(int Index)
{
    Recordset joueurs = partage().BaseDonnees.OpenRecordset(u"Equipes", store::dbOpenTable);
    joueurs.Index(u"licence");
    m_ui->Société->clear();
    const QString cherchee = m_LicenceJ[Index]->text().trimmed();
    for (int i = 0; i < nombreMembres(); ++i) {
        const QString licence = m_LicenceJ[i]->text().trimmed();
        if (licence.isEmpty())
            break;
        if (i != Index && memeTexte(licence, cherchee)) {
            refuseDoublon(Index);
            return;
        }
        PasseErreur([&] { completeMembre(joueurs, i); });
    }
    demandePanachee(Index);
}

/// A licence that nobody has borne yet makes the team a mixed one until the operator corrects the club.
void Eequipes::completeMembre(Recordset &joueurs, int ligne)
{
    joueurs.Seek(u"=", {m_LicenceJ[ligne]->text().trimmed()});
    if (joueurs.NoMatch()) {
        m_ui->Société->setText(clubPanache);
        return;
    }
    m_NomJ[ligne]->setText(joueurs[u"nom"].texte());
    m_PrénomJ[ligne]->setText(joueurs[u"prenom"].texte());
    const QString societe = joueurs[u"societe"].texte();
    if (m_ui->Société->text().isEmpty())
        m_ui->Société->setText(societe);
    else if (!memeTexte(m_ui->Société->text(), societe))
        m_ui->Société->setText(clubPanache);
}

void Eequipes::refuseDoublon(int Index)
{
    SetFocus(m_LicenceJ[Index]);
    MsgBox(u"Un même joueur ne peut pas être\r\nengagé deux fois dans la même équipe"_qs);
    m_LicenceJ[Index]->clear();
}

void Eequipes::demandePanachee(int Index)
{
    if (m_ui->Société->text() != clubPanache || m_LicenceJ[Index]->text().isEmpty() || partage().PanacheeAutorisee)
        return;
    const QString question = u"Les équipes panachées sont-elles autorisées"_qs;
    if (MsgBox(question, vbYesNo, titreEnregistrement) == ReponseBoite::Oui) {
        partage().PanacheeAutorisee = true;
        return;
    }
    m_LicenceJ[Index]->clear();
    SetFocus(m_LicenceJ[Index]);
}

void Eequipes::Société_KeyDown(int KeyCode, int)
{
    if (Touche::Avance(KeyCode))
        SetFocus(m_ui->Okc);
}
