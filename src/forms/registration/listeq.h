#pragma once

#include "noms/passation.h"
#include "registration/forme_liste.h"

#include <memory>

class FichierEquipes;

namespace Ui {
class listeq;
}

/// The teams of the current competition. Opened from the registration it shows every member and writes the teams to a
/// text file; opened from the results it shows one row a team, and a click there gives the team's number to them.
class listeq : public FormeListe
{
    Q_OBJECT

public:
    listeq(const Contexte &contexte, QWidget *parent);
    ~listeq() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Activate() override;

private:
    void Les_équipes_MouseUp(int Button, int ligne);
    void imprimer_Click();
    void LegendesListeq();
    void imprimer_selection_Click();

    bool pourLesResultats() const { return passation(formulaires()).ModeListeEquipes == 1; }
    QString format() const;
    void ajouteEquipes(FichierEquipes *fichier);
    void ecritTitres(FichierEquipes &fichier) const;
    void enregistre(const FichierEquipes &fichier);
    void donneNumero(const QString &numero);

    std::unique_ptr<Ui::listeq> m_ui;
};
