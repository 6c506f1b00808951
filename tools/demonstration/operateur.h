#pragma once

#include "boites_du_jour.h"
#include "incident.h"
#include "pilote/gestes.h"

class FlexGrid;

namespace demonstration {

/// The hands at the table: they find and click only what can be seen. After each gesture an unexpected box ends the
/// day.
class Operateur final : public pilote::Gestes
{
public:
    Operateur(Programme &programme, BoitesDuJour &boites)
        : m_programme(programme)
        , m_boites(boites)
    {
    }

    /// Starts the program and waits for its welcome window.
    void demarre();
    /// Control, or timer, \p nom of the open form \p forme.
    template<typename T = QWidget>
    T *controle(const QString &forme, const QString &nom) const
    {
        T *trouve = fenetre(forme)->findChild<T *>(nom);
        exige(trouve != nullptr, u"%1 n'a pas de contrôle %2."_qs.arg(forme, nom));
        return trouve;
    }
    QWidget *fenetre(const QString &forme) const override;

    void entree() { touche(Qt::Key_Return); }
    /// Types \p texte over what the field holds.
    void remplace(const QString &texte);
    void clique(QWidget *controle);
    void doubleClique(QWidget *controle);
    /// Clicks a cell of a grid, which is scrolled until it shows.
    void cliqueCellule(FlexGrid *grille, int ligne, int colonne, Qt::MouseButton bouton = Qt::LeftButton,
                       Qt::KeyboardModifiers avec = Qt::NoModifier);

    bool aLeFocus(const QString &forme, const QString &nom) const;
    /// Ends the day unless the focus comes to that control.
    void exigeFocus(const QString &forme, const QString &nom);
    void exigeTexte(const QString &forme, const QString &nom, const QString &attendu) const;

private:
    QPoint place(const QWidget &controle) const;
    void ecarteSouris(const QWidget &fenetre, QPoint point) const;
    Programme &programmeTenu() const override { return m_programme; }
    void apres() const override;

    Programme &m_programme;
    BoitesDuJour &m_boites;
};

} // namespace demonstration
