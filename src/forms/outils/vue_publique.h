#pragma once

#include "fenetres/formulaire.h"
#include "outils/listes_publiques.h"
#include "outils/mise_en_colonnes.h"
#include "outils/theme_public.h"

#include <array>

/// A text of the page, whole inside its frame.
struct TextePose
{
    QRectF cadre = {};
    QString texte = {};
    double taille = 0; ///< Pixels; smaller than asked for where the frame is too narrow.
    bool gras = false;
    Qt::Alignment cadrage = Qt::AlignLeft;
    QColor encre = {};
};

/// What the public sees: a window that takes neither the focus nor the keyboard and shows no mouse. Its pages turn when
/// bat() says that time has gone by.
class VuePublique : public QWidget
{
    Q_OBJECT

public:
    explicit VuePublique(const Contexte &contexte);

    /// Shows what has been read, on the page in hand.
    void montre(const EtatPublic &etat);
    /// Pages to show, seconds of each, colours.
    void regle(const std::array<bool, genresDePage> &pages, int secondes, bool sombre);
    /// So many milliseconds have gone by: the bar moves, clocks go on, the page turns.
    void bat(qint64 ecoule);
    void suivante();
    void pause(bool tenue);

    const Carrousel &carrousel() const { return m_carrousel; }
    const EtatPublic &etat() const { return m_etat; }
    /// The texts of the page in hand.
    const std::vector<TextePose> &textes() const { return m_textes; }

Q_SIGNALS:
    /// The operator has closed the window by the desktop.
    void fermee();

protected:
    void paintEvent(QPaintEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;
    void changeEvent(QEvent *evenement) override;
    void closeEvent(QCloseEvent *evenement) override;

private:
    /// A list, its place on pages, and the widths of its columns in letters.
    struct Mise
    {
        ListePublique liste;
        MiseEnColonnes colonnes;
        std::vector<double> largeurs;
        double largeur = 0;
    };

    double unite() const;
    QRectF corps() const;
    QRectF barre() const;
    double largeurTexte(const QString &texte, bool gras) const;
    Mise met(GenrePage genre) const;
    void elargit(Mise &mise, const std::vector<double> &entieres) const;
    void remet();
    QString abrege(const CellulePublique &cellule, double largeur) const;
    void compose();
    void composeTete();
    void composePied();
    void composeListe();
    void composeLigne(const Mise &mise, const std::vector<CellulePublique> &cellules, QPointF coin, double taille);
    void composeHorloge();
    void pose(const QRectF &cadre, const QString &texte, double taille, const QColor &encre, bool gras = false,
              Qt::Alignment cadrage = Qt::AlignLeft);
    QString heure() const;
    QString empreinteHorloge() const;

    Contexte m_contexte;
    EtatPublic m_etat;
    std::array<bool, genresDePage> m_pages{true, true, true, true, true};
    const ThemePublic *m_theme = &themeClair;
    Carrousel m_carrousel;
    std::array<Mise, genresDePage> m_mises;
    std::vector<TextePose> m_textes;
    std::vector<QRectF> m_bandes;
    QRectF m_drapeau;
    QString m_heureMontree;
    mutable QHash<QString, double> m_largeurs[2]; ///< Of texts in letters, light and bold.
};
