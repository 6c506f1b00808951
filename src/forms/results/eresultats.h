#pragma once

#include "engine/routines_tirage.h"
#include "fenetres/formulaire.h"
#include "fenetres/nom_forme.h"

#include <QElapsedTimer>

#include <memory>
#include <optional>

namespace Ui {
class EResultats;
}

/// Results: a match is called up by one team's number, the loser's score completes it, and the next round is drawn from
/// here.
class EResultats : public Formulaire
{
    Q_OBJECT

public:
    EResultats(const Contexte &contexte, QWidget *parent);
    ~EResultats() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Resize() override { RedimForm(); }
    void Form_GotFocus() override;
    void Form_Unload() override;
    void Form_MouseDown(int bouton, int maj, int x, int y) override;

private:
    void imprimer_Click();
    void listconcours_KeyDown(int KeyCode, int Shift);
    void listconcours_LostFocus();
    void Equipe1_KeyDown(int KeyCode, int Shift);
    void Equipe1_MouseDown(int Button, int Shift);
    void Equipe1_DblClick();
    void Equipe2_DblClick();
    void Score1_KeyDown(int KeyCode, int Shift);
    void Score2_KeyDown(int KeyCode, int Shift);
    void Score1_GotFocus();
    void Score2_GotFocus();
    void hit_Click();
    void manquants_Click();
    void VALIDATION_Click();
    void tirage_suivant_Click();

    /// What tells the two score fields apart in the entry of a score.
    enum class Cote { Premier, Second };
    /// Texts of the two score fields, put back when an entry ends without a save.
    struct TextesGardes
    {
        QString score1;
        QString score2;
    };
    /// Why the state of the competition is shown anew; the texts before the start differ.
    enum class Moment { Chargement, ChangementConcours };

    void LegendesResultats();
    void relie();
    void placeForme();

    bool afficheConcours(qint64 numero);
    void prendConcours(qint32 numero);
    void refuseConcours();
    void verrouille(bool verrouillees);

    bool appelleRencontre(qint64 equipe);
    bool chercheTableau2();

    void saisieScore(Cote cote, int KeyCode);
    void validationScore(Cote cote, TextesGardes &gardes);
    void traduitMots();
    void termineSaisie(Cote cote, qint64 tour);
    void videRencontre();
    void refuseScoreSansRencontre(const QString &score);
    void rafraichitPalmares();
    void montreVue(NomForme nom);
    void perimeVues();
    void rafraichitVues();

    void afficheEtat(Moment moment);
    void afficheAvantDepart(Moment moment);
    void afficheEnCours(qint64 attendus);
    qint64 compteAttendus(std::optional<int> tour = std::nullopt) const;
    qint64 compteJoueurs() const;
    bool resteUnTour() const;

    void annuleTirage();
    void annuleTour();

    bool recommenceTirage(ObstacleAuTirage obstacle);
    void avertitSelonStatut(moteur::StatutTirage statut);
    void montreEssai();
    void montreSigne(QStringView signe);

    std::unique_ptr<Ui::EResultats> m_ui;
    bool m_tirageEnCours = false;
    QElapsedTimer m_dernierSigne;
    QString m_signes; ///< What tour_P1 says of the draw, the signs that the screen has yet to show included.
};
