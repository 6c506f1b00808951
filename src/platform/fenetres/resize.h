#pragma once

#include <QString>

#include <vector>

class Formulaire;
class QWidget;

/// Keeps the controls of a form in proportion when the form changes size. The base of all ratios is the geometry in
/// which the module first saw the form, and it stays so for the whole run, even when the form is loaded again; every
/// resize starts from it, so that rounding never accumulates. Fonts keep their size.
///
/// A control parked out of sight, 75000 twips to the left of its place, stays parked. Measures are in twips.
class Redimensionnement
{
public:
    /// Places every control of \p forme for the form's present inner size. A call from within a call does nothing, and
    /// so does one for a form that has been sent off the screen.
    void RedimForm(Formulaire &forme);

private:
    struct Fiche
    {
        QString nom = {};
        qint32 index = 0;
        QString proprietaire = {};
        qint32 haut = 0;
        qint32 gauche = 0;
        qint32 hauteur = 0;
        qint32 largeur = 0;
        qint32 hauteurInterieure = 0;
        qint32 largeurInterieure = 0;
    };

    int ChercheForm(const Formulaire &forme) const;
    int EnregistreForm(const Formulaire &forme);
    int ChercheControle(const QWidget &controle, const QString &forme) const;
    void EnregistreControle(const QWidget &controle, const QString &forme);
    const Fiche &ficheDe(const Formulaire &forme);
    qint32 PourcentX(const Formulaire &forme);
    qint32 PourcentY(const Formulaire &forme);
    void PlaceControle(QWidget &controle, const Formulaire &forme);

    std::vector<Fiche> m_formes;
    std::vector<Fiche> m_controles;
    bool m_enRedim = false;
};
