#pragma once

#include "platform/formulaire.h"
#include "registration/equipe_inscrite.h"

#include <QScopedValueRollback>

#include <array>
#include <memory>

namespace Ui {
class Eequipes;
}

/// Registration of the teams: licences call up the players, one click stores the team under the next free number.
class Eequipes : public Formulaire
{
    Q_OBJECT

public:
    Eequipes(const Contexte &contexte, QWidget *parent);
    ~Eequipes() override;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void Form_Click() override;
    void Form_Resize() override { RedimForm(); }

    void référence_GotFocus();
    void référence_KeyDown(int KeyCode, int Shift);
    void référence_LostFocus();
    void Equipe_GotFocus();
    void Equipe_KeyDown(int KeyCode, int Shift);
    void Equipe_LostFocus();
    void LicenceJ_KeyDown(int Index, int KeyCode, int Shift);
    void LicenceJ_LostFocus(int Index);
    void NomJ_KeyDown(int Index, int KeyCode, int Shift);
    void PrénomJ_KeyDown(int Index, int KeyCode, int Shift);
    void Société_KeyDown(int KeyCode, int Shift);
    void Société_LostFocus();
    void Label1_Click();
    void Okc_Click();
    void SupprimerC_Click();
    void cImport_Click();
    void Command1_Click();
    void Command2_Click();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    static constexpr int membresAffiches = 4;
    using ChampsMembres = std::array<QLineEdit *, membresAffiches>;

    /// The row of a licence that is already in the competition.
    struct Engagement
    {
        qint64 equipe;
        qint64 doublon;
        QString nom;
        QString prenom;
        QString societe;
    };

    /// The work of leaving \p champ is being done on a key: the focus that it sends away does not start it again.
    [[nodiscard]] auto sortieFaite(const QWidget *champ) { return QScopedValueRollback(m_sortieFaite, champ); }

    void LegendesEequipes();
    void relie();
    void relieMembres();
    void placeListesoc(int largeur);
    void montreListesoc();

    // Competition
    void premiereActivation();
    QStringList numerosDesConcours() const;
    void choisitConcours(const QStringList &numeros);
    void afficheConcours(const store::Recordset &concours);
    void memorise(const store::Recordset &concours);
    void changeConcours(const store::Recordset &concours);
    void refuseConcours();
    void remplitEquipes();
    void montreControles(bool montres);
    void montreMembres();

    // Team number
    double numeroTape() const;
    qint64 numeroEquipe() const { return qint64(numeroTape()); }
    void poseNumero(const QString &texte);
    void proposeSuivante(std::optional<qint64> maxe);
    void refuseNumero(std::optional<qint64> maxe);
    void afficheCompte(qint64 nombre);
    void libelleCompte(double nombre);
    void numeroConnu(bool connu);
    bool litEquipe(std::optional<qint64> maxe);
    void afficheMembres(store::Recordset &equipes);

    // Members and club
    int nombreMembres() const;
    void videMembres();
    void videSaisie();
    std::optional<Engagement> chercheEngagement(const QString &licence) const;
    void signaleEngagement(int Index, const Engagement &engagement);
    void chercheJoueurs(int Index);
    void completeMembre(store::Recordset &joueurs, int ligne);
    void refuseDoublon(int Index);
    void demandePanachee(int Index);
    void ajouteClub(const QString &club);

    // Storing
    bool saisieRecevable();
    EquipeSaisie equipeSaisie() const;
    std::optional<Retardataire> demandeEntree();
    bool inscrit(const EquipeSaisie &equipe, Retardataire entree);
    bool corrige(const EquipeSaisie &equipe);
    void signaleEchec(qint64 numero);

    // Teams from a file
    void importeEquipe(const QString &ligne);

    std::unique_ptr<Ui::Eequipes> m_ui;
    ChampsMembres m_NomJ{};
    ChampsMembres m_PrénomJ{};
    ChampsMembres m_LicenceJ{};
    bool m_initialise = false;
    const QWidget *m_sortieFaite = nullptr;
};
