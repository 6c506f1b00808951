#pragma once

#include "donnees/concours.h"
#include "fenetres/formulaire.h"

#include <memory>

class QComboBox;

namespace Ui {
class Econcours;
}

/// Competition editor: the number in `référence` decides whether a competition is created or changed.
class Econcours : public Formulaire
{
    Q_OBJECT

public:
    Econcours(const Contexte &contexte, QWidget *parent);
    ~Econcours() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Resize() override { RedimForm(); }
    void Form_Activate() override;

private:
    void référence_GotFocus();
    void référence_KeyDown(int KeyCode, int Shift);
    void référence_LostFocus();
    void Command1_Click();
    /// Refills the list of competitions and proposes the number behind the last one; hides the list when there is none.
    void majrefconcours();
    void Text2_KeyDown(int KeyCode, int Shift);
    void Text3_KeyDown(int KeyCode, int Shift);
    void Text4_KeyDown(int KeyCode, int Shift);
    void Combo1_KeyDown(int KeyCode, int Shift);
    void Combo1_LostFocus();
    void ok_Click();
    void Dupliquer_Click();
    void Supprimer_Click();

    static constexpr int largeurReference = 6;

    void LegendesEconcours();
    void relie();
    void remplitTypes();
    void remplitCategories();
    void litConcours();
    void videSaisie();
    void videFicheConcours();
    void refuseType();
    /// Code of the type in `Combo1`: what stands before " - ", empty when that is missing.
    QString codeType() const;
    bool confirmeRemplacement(qint64 numero);
    void ajouteConcours(const donnees::Concours &concours);
    void annonceConcours(qint32 numero);
    void modifieConcours(const donnees::Concours &concours);
    donnees::Concours concoursSaisi() const;
    void videApresEnregistrement();
    void relitReferences();

    std::unique_ptr<Ui::Econcours> m_ui;
    qint32 m_refConcours = 0;
    QString m_ancienType;
    qint64 m_lu = 0; ///< Competition read into the fields since they were emptied last, 0 for none.
};
