#pragma once

#include "donnees/equipes.h"
#include "fenetres/formulaire.h"

#include <QScopedValueRollback>

#include <optional>

/// A team's or known player's number as the lists show it: four digits, or as many as it has.
QString NumeroAffiche(qint64 numero);

/// What the registration of teams and the file of known players share: a number that calls up what is stored under it,
/// a licence that only one may bear, a club that is added where it is typed first.
class FormeInscription : public Formulaire
{
    Q_OBJECT

public:
    using Formulaire::Formulaire;

    void Form_Click() override;
    void Form_Resize() override { RedimForm(); }

protected:
    /// Controls that both forms have; \p premierNom is where the entry goes on behind a new club.
    struct Champs
    {
        QComboBox *Equipe = nullptr;
        QLineEdit *Société = nullptr;
        QLineEdit *premierNom = nullptr;
        QWidget *Label1 = nullptr;
    };
    /// The fields of one player.
    struct Ligne
    {
        QLineEdit *LicenceJ;
        QLineEdit *NomJ;
        QLineEdit *PrénomJ;
    };
    /// Width in twips of the list of clubs beside the form.
    static constexpr int largeurClubs = 4500;

    /// Connects what is common. Called after the controls are made.
    void relie(const Champs &champs);
    /// Runs \p traitement when \p controle is left, unless a key has just done it.
    void surSortie(QWidget *controle, Traitement traitement);
    /// The work of leaving \p champ is being done on a key: the focus that it sends away does not start it again.
    [[nodiscard]] auto sortieFaite(const QWidget *champ) { return QScopedValueRollback(m_sortieFaite, champ); }
    /// Where the form stands on the screen.
    void placeForme();

    /// Competition whose numbers are entered here, 0 for the known players.
    virtual qint32 concoursSaisi() const = 0;
    /// Shows what is stored under the number; \p membres is not empty. False when it has to be left alone.
    virtual bool montreConnu(const std::vector<donnees::Membre> &membres) = 0;

    // Number
    double numeroTape() const;
    qint64 numeroEquipe() const { return qint64(numeroTape()); }
    void poseNumero(const QString &texte);
    void proposeSuivante(std::optional<qint64> maxe);
    /// Fills the list of numbers, and proposes the one behind the last; gives how many there are.
    std::size_t remplitNumeros();
    /// Takes a number out of the list.
    void retireDeLaListe(qint64 numero);

    /// Takes the blanks around what was typed away: they would make two of one licence or club. Gives what is left.
    static QString sansBlancs(QLineEdit *champ);

    // Licence
    static bool memeTexte(const QString &a, const QString &b);
    /// A licence that is taken may only be the one of this very line, place \p place under the number typed.
    void signaleEngagement(const donnees::Membre &engage, int place, const Ligne &ligne);

    /// The club has been left. One that the base lacks is added on a Yes, and taken out of the field on a No.
    void Société_LostFocus();
    /// Tells that a club is missing, and shows those that there are. False when there is one.
    bool refuseSansClub();
    void placeListesoc(int largeur);

private:
    void Equipe_KeyDown(int KeyCode, int Shift);
    void Equipe_LostFocus();
    void Label1_Click();

    void refuseNumero(std::optional<qint64> maxe);
    bool litNumero(std::optional<qint64> maxe);
    void ajouteClub(const QString &club);
    void montreListesoc();

    Champs m_champs;
    const QWidget *m_sortieFaite = nullptr;
};
