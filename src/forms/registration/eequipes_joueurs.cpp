#include "registration/eequipes.h"

#include "donnees/clubs.h"
#include "noms/passation.h"
#include "partage/routines.h"
#include "store/passe_erreur.h"
#include "ui_eequipes.h"

// The entry of the members: from a licence to a name and a club.

namespace {

const QString clubPanache = donnees::clubPanache.toString();
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
    m_ui->Avancement->clear();
    videMembres();
}

void Eequipes::afficheMembres(const std::vector<donnees::Membre> &membres)
{
    const int nombre = std::min(nombreMembres(), int(membres.size()));
    for (int i = 0; i < nombre; ++i) {
        const donnees::Membre &membre = membres[std::size_t(i)];
        m_NomJ[i]->setText(membre.nom);
        m_PrénomJ[i]->setText(membre.prenom);
        m_LicenceJ[i]->setText(membre.licence);
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
    LicenceJ_KeyDown(Index, Touche::Entree, 0);
}

void Eequipes::LicenceJ_KeyDown(int Index, int KeyCode, int)
{
    if (!Touche::Avance(KeyCode))
        return;
    QLineEdit *champ = m_LicenceJ[Index];
    const QString licence = sansBlancs(champ);
    if (licence.isEmpty())
        return;
    const auto faite = sortieFaite(champ);
    std::optional<donnees::Membre> engage;
    PasseErreur([&] {
        engage = donnees::MembreEngage(partage().BaseDonnees, licence, m_ui->référence->currentText().trimmed());
    });
    if (engage)
        signaleEngagement(*engage, Index, ligne(Index));
    else
        PasseErreur([&] { chercheJoueurs(Index); });
    if (!champ->text().isEmpty())
        SetFocus(m_NomJ[Index]);
}

/// Fills in the members whose licences the store knows from any competition, and works out the club of the team.
void Eequipes::chercheJoueurs(int Index)
{
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
        PasseErreur([&] { completeMembre(i); });
    }
    demandePanachee(Index);
}

/// A licence that nobody has borne yet makes the team a mixed one until the operator corrects the club.
void Eequipes::completeMembre(int ligne)
{
    const QString licence = m_LicenceJ[ligne]->text().trimmed();
    const std::optional<donnees::Membre> joueur = donnees::JoueurDeLicence(partage().BaseDonnees, licence);
    if (!joueur) {
        m_ui->Société->setText(clubPanache);
        return;
    }
    m_NomJ[ligne]->setText(joueur->nom);
    m_PrénomJ[ligne]->setText(joueur->prenom);
    const QString societe = joueur->club.trimmed();
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
    if (!donnees::EstPanache(m_ui->Société->text()) || m_LicenceJ[Index]->text().isEmpty()
        || passation(formulaires()).PanacheeAutorisee)
        return;
    const QString question = u"Les équipes panachées sont-elles autorisées"_qs;
    if (MsgBox(question, vbYesNo, titreEnregistrement) == ReponseBoite::Oui) {
        passation(formulaires()).PanacheeAutorisee = true;
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
