#pragma once

#include "donnees/rencontres.h"
#include "results/vue_resultats.h"

#include <memory>

namespace Ui {
class DetailResultats;
}

/// One team: its members, its club and its matches. The class bears the name of the form without its accents, which
/// the code generator of the windows cannot read.
class DetailResultats : public VueResultats
{
    Q_OBJECT

public:
    DetailResultats(const Contexte &contexte, QWidget *parent);
    ~DetailResultats() override;

    /// Shows what the store holds of \p equipe in the current competition.
    void affiche(qint64 equipe);

protected:
    void placePres(const Formulaire &saisie) override;

private:
    void afficheComposition(qint64 equipe);
    QString ligneRencontre(const donnees::Rencontre &rencontre, qint64 equipe);
    QString texteResultat(const donnees::Rencontre &rencontre, bool premiere) const;
    QString texteAdversaire(qint64 adversaire);

    std::unique_ptr<Ui::DetailResultats> m_ui;
};
