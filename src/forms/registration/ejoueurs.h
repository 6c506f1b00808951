#pragma once

#include "registration/forme_inscription.h"

#include <memory>

namespace Ui {
class Ejoueurs;
}

/// The file of known players. Each of them is stored as a team of one in competition 0, where the registration of the
/// teams finds him by his licence.
class Ejoueurs : public FormeInscription
{
    Q_OBJECT

public:
    Ejoueurs(const Contexte &contexte, QWidget *parent);
    ~Ejoueurs() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

protected:
    qint32 concoursSaisi() const override;
    bool montreConnu(const std::vector<donnees::Membre> &membres) override;

private:
    void Equipe_GotFocus();
    void LicenceJ_KeyDown(int Index, int KeyCode, int Shift);
    void LicenceJ_LostFocus(int Index);
    void NomJ_KeyDown(int Index, int KeyCode, int Shift);
    void PrénomJ_KeyDown(int Index, int KeyCode, int Shift);
    void Société_KeyDown(int KeyCode, int Shift);
    void Okc_Click();
    void SupprimerC_Click();
    void Command1_Click();
    void ne_KeyDown(int KeyCode, int Shift);

    void LegendesEjoueurs();
    void relie();
    void premiereActivation();
    void placeListe();
    void videSaisie();
    void verifieLicence();
    donnees::Membre joueurSaisi() const;
    void ajoute();
    void corrige();
    void signaleDate(const QString &tapee, const QString &reste) const;

    std::unique_ptr<Ui::Ejoueurs> m_ui;
    bool m_initialise = false;
};
