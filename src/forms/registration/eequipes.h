#pragma once

#include "donnees/concours.h"
#include "donnees/inscription.h"
#include "registration/forme_inscription.h"

#include <array>
#include <memory>

namespace Ui {
class Eequipes;
}

class EchapTenue;
class QFile;

/// Registration of the teams: licences call up the players, one click stores the team under the next free number.
class Eequipes : public FormeInscription
{
    Q_OBJECT

public:
    Eequipes(const Contexte &contexte, QWidget *parent);
    ~Eequipes() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

protected:
    qint32 concoursSaisi() const override { return partage().ConcoursCourant; }
    bool montreConnu(const std::vector<donnees::Membre> &membres) override;

private:
    void référence_GotFocus();
    void référence_KeyDown(int KeyCode, int Shift);
    void référence_LostFocus();
    void Equipe_GotFocus();
    void LicenceJ_KeyDown(int Index, int KeyCode, int Shift);
    void LicenceJ_LostFocus(int Index);
    void NomJ_KeyDown(int Index, int KeyCode, int Shift);
    void PrénomJ_KeyDown(int Index, int KeyCode, int Shift);
    void Société_KeyDown(int KeyCode, int Shift);
    void Okc_Click();
    void SupprimerC_Click();
    void Command1_Click();
    void Command2_Click();
    void cImport_Click();

    static constexpr int membresAffiches = 4;
    using ChampsMembres = std::array<QLineEdit *, membresAffiches>;

    void LegendesEequipes();
    void relie();
    void relieMembres();

    // Competition
    void premiereActivation();
    void afficheConcours(const donnees::Concours &concours);
    void memorise(const donnees::Concours &concours);
    void changeConcours(const donnees::Concours &concours);
    void refuseConcours();
    void remplitEquipes();
    void montreControles(bool montres);
    void montreMembres();

    // Team number
    void afficheCompte(qint64 nombre);
    void libelleCompte(double nombre);
    void numeroConnu(bool connu);
    void afficheMembres(const std::vector<donnees::Membre> &membres);

    // Members and club
    int nombreMembres() const;
    void videMembres();
    void videSaisie();
    Ligne ligne(int Index) const { return {m_LicenceJ[Index], m_NomJ[Index], m_PrénomJ[Index]}; }
    void chercheJoueurs(int Index);
    void completeMembre(int ligne);
    void refuseDoublon(int Index);
    void demandePanachee(int Index);

    // Storing
    bool enregistre();
    bool saisieRecevable();
    donnees::Equipe equipeSaisie() const;
    std::optional<donnees::Retardataire> demandeEntree();
    bool inscrit(const donnees::Equipe &equipe, donnees::Retardataire entree);
    bool corrige(const donnees::Equipe &equipe);
    void signaleEchec(qint64 numero);

    // Teams from a file
    void importeFichier(QFile &fichier);
    bool importeEquipe(const QString &ligne, const EchapTenue &echap);

    std::unique_ptr<Ui::Eequipes> m_ui;
    ChampsMembres m_NomJ{};
    ChampsMembres m_PrénomJ{};
    ChampsMembres m_LicenceJ{};
    bool m_initialise = false;
};
