#pragma once

#include "fenetres/formulaire.h"

class FlexGrid;

/// A window that stands beside the results form: it shows, and leaves the keyboard to the entry of results.
class VueResultats : public Formulaire
{
    Q_OBJECT

public:
    using Formulaire::Formulaire;

protected:
    /// Puts the view beside \p saisie, the results form.
    virtual void placePres(const Formulaire &saisie) = 0;
    /// Left edge of the view, in twips: \p voulue if that is on the screen, else one that leaves \p saisie free.
    int gaucheLibre(const Formulaire &saisie, int voulue) const;
    /// Places the view once each time it has been shown: where the operator moves it, it stays.
    void placeForme();
    /// The view has taken another size: placeForme() places it again.
    void perdPlace() { m_placee = false; }
    /// Makes the results form the active one again, with the focus where it was.
    void rendClavier() const;
    /// \p traitement gets the button, the row and the column of a press in \p grille; the keyboard then returns to the
    /// entry.
    void surPression(FlexGrid *grille, const std::function<void(int bouton, int ligne, int colonne)> &traitement);
    /// The view has left the screen.
    virtual void quitteEcran() {}

    void hideEvent(QHideEvent *evenement) override;

private:
    bool m_placee = false;
};
