#pragma once

#include "outils/forme_outil.h"

#include <array>
#include <memory>

namespace Ui {
class AffichagePublic;
}
class Projection;
class QCheckBox;

/// From here the operator opens the public view and chooses what it shows, and where. The view stays when the form is
/// closed.
class AffichagePublic : public FormeOutil
{
    Q_OBJECT

public:
    AffichagePublic(const Contexte &contexte, QWidget *parent);
    ~AffichagePublic() override;

    void Form_Load() override;

protected:
    void traduit() override;

private:
    static QString nomEcran(const QString &nom);
    std::array<QCheckBox *, 5> pages() const;
    void montreReglages();
    void regle();
    void Afficher_Click();

    std::unique_ptr<Ui::AffichagePublic> m_ui;
    Projection &m_projection;
};
