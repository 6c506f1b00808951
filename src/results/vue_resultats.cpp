#include "results/vue_resultats.h"

#include "platform/flexgrid.h"
#include "platform/formulaires.h"

#include <QHideEvent>

namespace {

const QString nomSaisie = u"EResultats"_qs;

} // namespace

void VueResultats::placeForme()
{
    const Formulaire *saisie = formulaires().forme(nomSaisie);
    if (saisie == nullptr || m_placee)
        return;
    placePres(*saisie);
    m_placee = true;
}

void VueResultats::rendClavier() const
{
    if (Formulaire *saisie = formulaires().forme(nomSaisie); saisie != nullptr && saisie->isVisible())
        saisie->activateWindow();
}

void VueResultats::surPression(FlexGrid *grille,
                               const std::function<void(int bouton, int ligne, int colonne)> &traitement)
{
    connect(grille, &FlexGrid::mousePresse, this,
            [this, traitement](Qt::MouseButton bouton, Qt::KeyboardModifiers, int ligne, int colonne) {
                execute([&] { traitement(CodeBouton(bouton), ligne, colonne); });
                rendClavier();
            });
}

void VueResultats::hideEvent(QHideEvent *evenement)
{
    // A minimised window is still there.
    if (!evenement->spontaneous()) {
        m_placee = false;
        quitteEcran();
    }
    Formulaire::hideEvent(evenement);
}
