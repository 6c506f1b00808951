#pragma once

#include "fenetres/boites.h"
#include "fenetres/touches.h"
#include "partage/partage.h"
#include "socle/respiration.h"

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class Formulaires;
class QAbstractButton;
class QAction;
class QComboBox;
class QLineEdit;

/// What every form is given.
struct Contexte
{
    Partage &partage;
    Formulaires &formulaires;
    Boites &boites;
};

/// A tool tip and the control that bears it.
struct Infobulle
{
    QWidget *controle;
    QString texte;
};

/// Shift state as the handlers compare it.
int EtatMaj(Qt::KeyboardModifiers touches);
/// Mouse button as the handlers compare it.
int CodeBouton(Qt::MouseButton bouton);

/// Gives the focus to a control, and brings its form to the front when another one is active.
void SetFocus(QWidget *controle);

/// Runs a handler: a failure of the store or of the program ends it and is shown in one box.
void Execute(Boites &boites, const std::function<void()> &traitement);

/// Shows \p texte in an editable list; the item of that text becomes the current one.
void poseTexte(QComboBox *combo, const QString &texte);

/// A form: a window that is known by its name and whose handlers run one at a time.
///
/// A form binds its controls to its handlers by surClick() and its like. A failure in a handler ends that handler, is
/// shown in one box, and leaves the program running. Positions and sizes are in twips, of the screen for the form
/// itself.
class Formulaire : public QWidget
{
    Q_OBJECT

public:
    Formulaire(const Contexte &contexte, QWidget *parent);

    /// What Formulaires knows the form by.
    QString Name() const { return objectName(); }

    /// Loads captions and contents. Called once when the form is loaded, and by whoever wants it filled again.
    virtual void Form_Load() {}
    /// The form has become the active one, coming from another form; a message box does not count as one.
    virtual void Form_Activate() {}
    /// The focus has come to the form itself, none of its controls having it.
    virtual void Form_GotFocus() {}
    /// The form goes, closed by the operator or unloaded by the program; its controls still stand.
    virtual void Form_Unload() {}
    /// A left press on the form itself, beside its controls.
    virtual void Form_Click() {}
    /// The form has another size; the controls have not moved yet.
    virtual void Form_Resize() {}
    /// A press on the form itself, beside its controls. \p x and \p y in twips.
    virtual void Form_MouseDown(int /*bouton*/, int /*maj*/, int /*x*/, int /*y*/) {}
    /// Rebuilds what the form shows of the store, when it is visible.
    virtual void Rafraichir() {}

    /// The tool tips that no caption routine gives: those of pictures, and those that tell of a gesture nobody would
    /// guess. Asked before Form_Load, in the language of then.
    virtual std::vector<Infobulle> infobulles() const { return {}; }

    // Place and size in twips of the screen; the frame that the desktop draws round the form counts.
    int Left() const;
    int Top() const;
    int Width() const;
    int Height() const;
    void Move(int gauche, int haut);
    void Move(int gauche, int haut, int largeur, int hauteur);
    /// Carries out \p placement now, and once more when the desktop has given the form its frame: until then its size
    /// is a guess, and a window that is moved on its way into the frame ends up beside its place.
    void place(std::function<void()> placement);
    /// The form may have received its frame. Called by the watch over the forms.
    void encadre();

    /// Control of that name and class that another form may read or write. Throws std::logic_error when there is none:
    /// who asks has the wrong form or the wrong name.
    template<typename Controle>
    Controle *controle(const QString &nom) const
    {
        if (auto *trouve = findChild<Controle *>(nom))
            return trouve;
        manque(nom);
    }

    /// Runs a handler: a failure inside is shown in one box and ends it.
    void execute(const std::function<void()> &traitement);

    // Called by the focus watch.
    void recoitFocus(QWidget *controle);
    void perdFocus(QWidget *controle);

protected:
    using Traitement = std::function<void()>;
    using TraitementTouche = std::function<void(int, int)>;
    using TraitementSouris = std::function<void(int bouton, int maj)>;

    void surClick(QAbstractButton *bouton, Traitement traitement);
    void surClick(QAction *action, Traitement traitement);
    /// An item of the combo's list has been picked. The arrows open that list: they walk through nothing unseen.
    void surChoix(QComboBox *combo, Traitement traitement);
    /// \p traitement gets the key code and the shift state before the control sees the key.
    void surKeyDown(QWidget *controle, TraitementTouche traitement);
    void surGotFocus(QWidget *controle, Traitement traitement);
    void surLostFocus(QWidget *controle, Traitement traitement);
    void surMouseDown(QWidget *controle, TraitementSouris traitement);
    void surDblClick(QWidget *controle, Traitement traitement);
    /// Lets Enter click every button of the form (a held Enter clicks once), and names picture buttons by their tool
    /// tips. Called after the controls are made.
    void prepareControles();

    Partage &partage() const { return m_contexte.partage; }
    Formulaires &formulaires() const { return m_contexte.formulaires; }
    Boites &boites() const { return m_contexte.boites; }
    const Contexte &contexte() const { return m_contexte; }
    /// Keeps the controls in proportion to the form.
    void RedimForm();
    const QString &mes(int numero) const { return m_contexte.partage.mes(numero); }
    ReponseBoite MsgBox(const QString &texte, int drapeaux = vbOKOnly, const QString &titre = {}) const
    {
        return m_contexte.boites.MsgBox(texte, drapeaux, titre);
    }

    bool eventFilter(QObject *objet, QEvent *evenement) override;
    void focusInEvent(QFocusEvent *evenement) override;
    void mousePressEvent(QMouseEvent *evenement) override;
    void moveEvent(QMoveEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;
    void showEvent(QShowEvent *evenement) override;
    void closeEvent(QCloseEvent *evenement) override;

private:
    [[noreturn]] void manque(const QString &nom) const;
    QSize tailleCadre() const;
    bool toucheSurControle(QWidget *controle, QKeyEvent *evenement);
    bool retientListe(QWidget *controle, const QEvent &evenement);

    Contexte m_contexte;
    QHash<QWidget *, TraitementTouche> m_touches;
    QHash<QWidget *, Traitement> m_gotFocus;
    QHash<QWidget *, Traitement> m_lostFocus;
    QHash<QWidget *, TraitementSouris> m_souris;
    QHash<QWidget *, Traitement> m_doubleClics;
    QSet<QComboBox *> m_listes;
    std::optional<QPoint> m_placeVoulue;
    Traitement m_placement; ///< To be carried out again; none once the form stands in its frame.
};

/// Size of the screen in twips.
struct Ecran
{
    static int Width();
    static int Height();
};

/// Puts the window \p forme in front of all others, or back among them.
void FenetreDessus(QWidget &forme, bool dessus);
