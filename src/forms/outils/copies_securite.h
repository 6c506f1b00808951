#pragma once

#include "garde/inventaire.h"
#include "garde/sauvegarde.h"
#include "outils/forme_outil.h"

#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

namespace Ui {
class CopiesSecurite;
}

/// The safety copies: what each holds, and the way back to one. The newest stands first.
class CopiesSecurite : public FormeOutil
{
    Q_OBJECT

public:
    CopiesSecurite(const Contexte &contexte, QWidget *parent);
    ~CopiesSecurite() override;

    void Form_Load() override;
    void Form_Activate() override;
    /// Lists the copies anew, and reads them one by one while the operator may go on.
    void Rafraichir() override;

protected:
    void traduit() override;

private:
    /// A copy and what has been read of it.
    struct Ligne
    {
        Copie copie;
        std::optional<Inventaire> inventaire; ///< Nothing before it is read, and when it can't be.
        bool lue = false;
        bool identique = false; ///< Proved to hold what the base holds.
    };

    void Restaurer_Click();
    void Copier_maintenant_Click();
    void Copier_vers_Click();
    void litSuivante();
    void montreLigne(int ligne);
    void montreConcours();
    void montreBase();
    QString differences(const Ligne &ligne) const;
    const Ligne *choisie() const;
    void remet(const Copie &copie);

    std::unique_ptr<Ui::CopiesSecurite> m_ui;
    std::vector<Ligne> m_lignes;
    Inventaire m_base;
    QTimer m_lecture;
};
