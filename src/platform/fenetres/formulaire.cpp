#include "fenetres/formulaire.h"

#include "fenetres/formulaires.h"
#include "fenetres/garde_base.h"
#include "fenetres/touches_alt.h"
#include "socle/twips.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <stdexcept>

namespace {

int codeTouche(const QKeyEvent &evenement)
{
    switch (evenement.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Touche::Entree;
    case Qt::Key_Tab:
        return Touche::Tabulation;
    case Qt::Key_Escape:
        return Touche::Echap;
    case Qt::Key_Right:
        return Touche::Droite;
    default:
        break;
    }
    // Only letters and digits have their own codes in common with the handlers: an apostrophe would be a right arrow.
    const bool lettreOuChiffre = (evenement.key() >= Qt::Key_0 && evenement.key() <= Qt::Key_9)
        || (evenement.key() >= Qt::Key_A && evenement.key() <= Qt::Key_Z);
    return lettreOuChiffre ? evenement.key() : -1;
}

/// The control that an event is about: the combo when it happens in the combo's own editor.
QWidget *controleDe(QObject *objet)
{
    auto *widget = qobject_cast<QWidget *>(objet);
    if (widget != nullptr && qobject_cast<QComboBox *>(widget->parentWidget()) != nullptr)
        return widget->parentWidget();
    return widget;
}

} // namespace

int EtatMaj(Qt::KeyboardModifiers touches)
{
    return (touches.testFlag(Qt::ShiftModifier) ? Maj::Majuscule : 0)
        + (touches.testFlag(Qt::ControlModifier) ? Maj::Controle : 0)
        + (touches.testFlag(Qt::AltModifier) ? Maj::Alternative : 0);
}

int CodeBouton(Qt::MouseButton bouton)
{
    return bouton == Qt::LeftButton ? Bouton::Gauche : bouton == Qt::RightButton ? Bouton::Droit : 4;
}

void SetFocus(QWidget *controle)
{
    QWidget *fenetre = controle->window();
    if (fenetre->isVisible() && !fenetre->isActiveWindow())
        fenetre->activateWindow();
    controle->setFocus(Qt::OtherFocusReason);
}

namespace {

/// A dialog, for the desktop: it keeps those before the window that they belong to, which else would cover all forms
/// when it is clicked. With all buttons of a window.
constexpr auto genreDeFenetre = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
    | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;

} // namespace

Formulaire::Formulaire(const Contexte &contexte, QWidget *parent)
    : QWidget(parent, genreDeFenetre)
    , m_contexte(contexte)
{
}

int Formulaire::Left() const
{
    return enTwips(m_placeVoulue.value_or(pos()).x());
}

int Formulaire::Top() const
{
    return enTwips(m_placeVoulue.value_or(pos()).y());
}

QSize Formulaire::tailleCadre() const
{
    return formulaires().tailleCadre(*this);
}

int Formulaire::Width() const
{
    return enTwips(width() + tailleCadre().width());
}

int Formulaire::Height() const
{
    return enTwips(height() + tailleCadre().height());
}

void Formulaire::Move(int gauche, int haut)
{
    m_placeVoulue = QPoint(enPixels(gauche), enPixels(haut));
    move(*m_placeVoulue);
}

void Formulaire::Move(int gauche, int haut, int largeur, int hauteur)
{
    Move(gauche, haut);
    resize(enPixels(largeur) - tailleCadre().width(), enPixels(hauteur) - tailleCadre().height());
}

void Formulaire::place(std::function<void()> placement)
{
    placement();
    m_placement = Formulaires::bordures(*this).isNull() ? std::move(placement) : nullptr;
}

void Formulaire::encadre()
{
    if (m_placement != nullptr && !Formulaires::bordures(*this).isNull())
        execute(std::exchange(m_placement, nullptr));
}

void Formulaire::manque(const QString &nom) const
{
    throw std::logic_error(u"La fenêtre %1 n'a pas de champ %2."_qs.arg(Name(), nom).toStdString());
}

void Execute(Boites &boites, const std::function<void()> &traitement)
{
    try {
        traitement();
    } catch (const store::Erreur &erreur) {
        boites.MsgBox(u"Erreur %1 : %2"_qs.arg(erreur.numero()).arg(erreur.phrase()), vbCritical);
    } catch (const std::exception &erreur) {
        boites.MsgBox(u"Erreur du programme : "_qs + QString::fromUtf8(erreur.what()), vbCritical);
    }
}

void poseTexte(QComboBox *combo, const QString &texte)
{
    combo->setCurrentIndex(combo->findText(texte));
    combo->setEditText(texte);
}

void Formulaire::execute(const std::function<void()> &traitement)
{
    const Contexte contexte = m_contexte; // the handler may unload this form
    Execute(contexte.boites, traitement);
    SurveilleFichier(contexte);
}

void Formulaire::recoitFocus(QWidget *controle)
{
    if (const Traitement traitement = m_gotFocus.value(controle))
        execute(traitement);
}

void Formulaire::perdFocus(QWidget *controle)
{
    if (const Traitement traitement = m_lostFocus.value(controle))
        execute(traitement);
}

void Formulaire::surClick(QAbstractButton *bouton, Traitement traitement)
{
    connect(bouton, &QAbstractButton::clicked, this, [this, bouton, traitement = std::move(traitement)] {
        // The second half of a double click can still reach a button that the first one has hidden.
        if (bouton->isVisible() || !isVisible())
            execute(traitement);
    });
}

void Formulaire::surClick(QAction *action, Traitement traitement)
{
    connect(action, &QAction::triggered, this, [this, traitement = std::move(traitement)] { execute(traitement); });
}

void Formulaire::surChoix(QComboBox *combo, Traitement traitement)
{
    connect(combo, &QComboBox::activated, this, [this, traitement = std::move(traitement)] { execute(traitement); });
    m_listes.insert(combo);
}

void Formulaire::surKeyDown(QWidget *controle, TraitementTouche traitement)
{
    m_touches[controle] = std::move(traitement);
}

void Formulaire::surGotFocus(QWidget *controle, Traitement traitement)
{
    m_gotFocus[controle] = std::move(traitement);
}

void Formulaire::surLostFocus(QWidget *controle, Traitement traitement)
{
    m_lostFocus[controle] = std::move(traitement);
}

void Formulaire::surMouseDown(QWidget *controle, TraitementSouris traitement)
{
    m_souris[controle] = std::move(traitement);
}

void Formulaire::surDblClick(QWidget *controle, Traitement traitement)
{
    m_doubleClics[controle] = std::move(traitement);
}

void Formulaire::prepareControles()
{
    const auto controles = findChildren<QWidget *>();
    for (QWidget *controle : controles) {
        controle->installEventFilter(this);
        if (auto *combo = qobject_cast<QComboBox *>(controle)) {
            combo->setInsertPolicy(QComboBox::NoInsert);
            if (combo->isEditable())
                combo->setCompleter(nullptr);
        }
    }
}

bool Formulaire::toucheSurControle(QWidget *controle, QKeyEvent *evenement)
{
    const int code = codeTouche(*evenement);
    if (auto *bouton = qobject_cast<QAbstractButton *>(controle); bouton != nullptr && code == Touche::Entree) {
        if (!evenement->isAutoRepeat())
            bouton->click();
        return true;
    }
    const TraitementTouche traitement = m_touches.value(controle);
    if (!traitement)
        return false;
    const QWidget *avant = QApplication::focusWidget();
    const int maj = EtatMaj(evenement->modifiers());
    execute([&] { traitement(code, maj); });
    // Enter is the program's own, but for grids, where it is a click; any other key belongs to the control, unless the
    // focus has gone elsewhere.
    const bool grille = qobject_cast<QAbstractItemView *>(controle) != nullptr;
    return (code == Touche::Entree && !grille) || avant != QApplication::focusWidget();
}

/// Wheel and arrows would walk through competitions and teams under the operator's hand, each one read as if picked.
bool Formulaire::retientListe(QWidget *controle, const QEvent &evenement)
{
    auto *combo = qobject_cast<QComboBox *>(controle);
    if (combo == nullptr)
        return false;
    if (evenement.type() == QEvent::Wheel)
        return true;
    if (evenement.type() != QEvent::KeyPress || !m_listes.contains(combo))
        return false;
    const int touche = static_cast<const QKeyEvent &>(evenement).key();
    if (touche != Qt::Key_Up && touche != Qt::Key_Down && touche != Qt::Key_PageUp && touche != Qt::Key_PageDown)
        return false;
    combo->showPopup();
    return true;
}

bool Formulaire::eventFilter(QObject *objet, QEvent *evenement)
{
    QWidget *controle = controleDe(objet);
    if (retientListe(controle, *evenement))
        return true;
    switch (evenement->type()) {
    case QEvent::ToolTipChange:
        // A picture says nothing to whoever cannot see it; its tool tip does, in the operator's language.
        if (auto *bouton = qobject_cast<QAbstractButton *>(controle); bouton != nullptr && bouton->text().isEmpty())
            bouton->setAccessibleName(bouton->toolTip());
        break;
    case QEvent::KeyPress:
        if (toucheSurControle(controle, static_cast<QKeyEvent *>(evenement)))
            return true;
        break;
    case QEvent::MouseButtonPress:
        if (const TraitementSouris traitement = m_souris.value(controle)) {
            const auto *souris = static_cast<QMouseEvent *>(evenement);
            const int bouton = CodeBouton(souris->button());
            execute([&] { traitement(bouton, EtatMaj(souris->modifiers())); });
        }
        break;
    case QEvent::MouseButtonDblClick:
        if (const Traitement traitement = m_doubleClics.value(controle);
            traitement && static_cast<QMouseEvent *>(evenement)->button() == Qt::LeftButton)
            execute(traitement);
        break;
    default:
        break;
    }
    return QWidget::eventFilter(objet, evenement);
}

void Formulaire::focusInEvent(QFocusEvent *)
{
    execute([this] { Form_GotFocus(); });
}

void Formulaire::mousePressEvent(QMouseEvent *evenement)
{
    // A button hands on the presses that are not its own; they are no presses on the bare form.
    if (qobject_cast<QAbstractButton *>(childAt(evenement->position().toPoint())) != nullptr)
        return;
    const int bouton = CodeBouton(evenement->button());
    execute([&] {
        Form_MouseDown(bouton, EtatMaj(evenement->modifiers()), enTwips(evenement->pos().x()),
                       enTwips(evenement->pos().y()));
        if (bouton == Bouton::Gauche)
            Form_Click();
    });
}

/// A desktop takes its time to put a new window into its frame: in between its place is only what was asked for.
void Formulaire::moveEvent(QMoveEvent *evenement)
{
    if (isVisible())
        m_placeVoulue.reset();
    QWidget::moveEvent(evenement);
}

void Formulaire::resizeEvent(QResizeEvent *)
{
    execute([this] { Form_Resize(); });
}

void Formulaire::showEvent(QShowEvent *evenement)
{
    // The field inside a combo is what screen readers find when the focus is there.
    const auto combos = findChildren<QComboBox *>();
    for (const QComboBox *combo : combos)
        if (combo->isEditable())
            combo->lineEdit()->setAccessibleName(NomDuControle(*combo));
    QWidget::showEvent(evenement);
}

void Formulaire::RedimForm()
{
    formulaires().redimensionnement().RedimForm(*this);
}

void Formulaire::closeEvent(QCloseEvent *evenement)
{
    evenement->accept();
    const QString nom = Name();
    formulaires().Decharge(NomForme(nom));
}

int Ecran::Width()
{
    return enTwips(QApplication::primaryScreen()->geometry().width());
}

int Ecran::Height()
{
    return enTwips(QApplication::primaryScreen()->geometry().height());
}

void FenetreDessus(QWidget &forme, bool dessus)
{
    QWindow *fenetre = forme.windowHandle();
    if (fenetre == nullptr)
        forme.setWindowFlag(Qt::WindowStaysOnTopHint, dessus);
    else if (fenetre->flags().testFlag(Qt::WindowStaysOnTopHint) != dessus)
        fenetre->setFlag(Qt::WindowStaysOnTopHint, dessus);
}
