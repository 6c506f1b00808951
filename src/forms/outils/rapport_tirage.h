#pragma once

#include "engine/routines_rapport.h"
#include "outils/forme_outil.h"

#include <QTimer>

#include <memory>

namespace Ui {
class RapportTirage;
}

/// Opens the report behind a draw, when the operator wishes it and it has something to tell.
void MontreRapportApresTirage(const Contexte &contexte);

/// The report on a round: what its draw could not avoid, or could have. As long as no result of the last round is in,
/// it can be drawn anew from here.
class RapportTirage : public FormeOutil
{
    Q_OBJECT

public:
    RapportTirage(const Contexte &contexte, QWidget *parent);
    ~RapportTirage() override;

    void Form_Load() override;
    void Form_Activate() override;
    /// Reads the matches anew and shows the last round.
    void Rafraichir() override;

protected:
    void traduit() override;

private:
    void Tour_Click();
    void Refaire_Click();
    void Meilleur_Click();
    void Imprimer_Click();
    void Fiches_Click();

    QStringList entetes() const;
    void montre(int tour);
    void montrePaires();
    void montreBilan();
    QString remarque(const moteur::PaireRapportee &paire) const;
    QString bilan(const moteur::RapportTour &rapport) const;
    /// Whether what is shown is still what the base holds, and may be drawn anew; the operator is told otherwise.
    bool peutRefaire();
    void remplace(const TourPropose &propose);
    int tourChoisi() const;

    std::unique_ptr<Ui::RapportTirage> m_ui;
    qint32 m_concours = 0;
    MatiereRapport m_matiere;
    moteur::RapportTour m_rapport;
    QString m_avant; ///< What the draw before the last redraw was like.
    QTimer m_calcul;
};
