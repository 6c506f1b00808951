#include "fenetres/touches_alt.h"

#include <QAbstractButton>
#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QRadioButton>

#include <algorithm>

namespace {

/// The same text without the marks of Alt keys; a doubled mark is a plain "&".
QString sansMarque(const QString &texte)
{
    QString sans;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        if (texte[i] == u'&' && ++i == texte.size())
            break;
        sans += texte[i];
    }
    return sans.trimmed();
}

QChar signeDe(const QKeySequence &touches)
{
    if (touches.isEmpty() || touches[0].keyboardModifiers() != Qt::AltModifier)
        return {};
    return QChar(char16_t(touches[0].key()));
}

/// Letters of \p nom as the keyboard has them, without accents, those that begin a word first.
QString lettres(const QString &nom)
{
    QString debuts;
    QString suites;
    bool dansMot = false;
    for (const QChar signe : nom.normalized(QString::NormalizationForm_D).toUpper()) {
        const bool lettre = signe >= u'A' && signe <= u'Z';
        if (lettre)
            (dansMot ? suites : debuts) += signe;
        // What is left of an accent stands inside the word.
        dansMot = lettre || signe.category() == QChar::Mark_NonSpacing;
    }
    return debuts + suites;
}

QChar signeLibre(const QString &nom, const QString &pris)
{
    const QString siennes = lettres(nom);
    const QString possibles = siennes.isEmpty() && !nom.isEmpty() ? nom.left(1) : siennes;
    for (const QString &signes : {possibles, QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ")})
        for (const QChar signe : signes)
            if (!pris.contains(signe))
                return signe;
    return {};
}

/// Name of a control without its place in an array: fields of one table share it.
QString famille(const QWidget &controle)
{
    const QString nom = controle.objectName();
    const qsizetype trait = nom.lastIndexOf(u'_');
    bool estIndex = false;
    nom.mid(trait + 1).toInt(&estIndex);
    return trait > 0 && estIndex ? nom.left(trait) : nom;
}

std::vector<ToucheAlt> cibles(const QWidget &fenetre)
{
    std::vector<ToucheAlt> trouvees;
    QStringList familles;
    for (QWidget *controle : OrdreDesTabulations(fenetre)) {
        const auto *bouton = qobject_cast<const QAbstractButton *>(controle);
        const QChar sien = bouton == nullptr ? QChar() : signeDe(bouton->shortcut());
        if (!familles.contains(famille(*controle)))
            trouvees.push_back({.signe = sien, .controle = controle, .duSysteme = !sien.isNull()});
        familles += famille(*controle);
    }
    if (const auto *principale = qobject_cast<const QMainWindow *>(&fenetre)) {
        const auto menus = principale->menuBar()->actions();
        for (QAction *menu : menus) {
            const QChar sien = signeDe(QKeySequence::mnemonic(menu->text()));
            if (menu->menu() != nullptr)
                trouvees.push_back({.signe = sien, .menu = menu, .duSysteme = !sien.isNull()});
        }
    }
    return trouvees;
}

} // namespace

QString NomDuControle(const QWidget &controle)
{
    if (!controle.accessibleName().isEmpty())
        return controle.accessibleName();
    if (const auto *bouton = qobject_cast<const QAbstractButton *>(&controle); bouton && !bouton->text().isEmpty())
        return sansMarque(bouton->text());
    const auto etiquettes = controle.window()->findChildren<QLabel *>();
    for (const QLabel *etiquette : etiquettes)
        if (etiquette->buddy() == &controle)
            return sansMarque(etiquette->text());
    return {};
}

std::vector<QWidget *> OrdreDesTabulations(const QWidget &fenetre)
{
    // Of the options of a group, Tab goes to the chosen one, and the arrows to the others.
    const auto atteint = [](const QWidget &controle) {
        return (controle.focusPolicy() & Qt::TabFocus) != 0
            || (qobject_cast<const QRadioButton *>(&controle) != nullptr && controle.focusPolicy() != Qt::NoFocus);
    };
    std::vector<QWidget *> controles;
    for (QWidget *suivant = fenetre.nextInFocusChain(); suivant != &fenetre; suivant = suivant->nextInFocusChain())
        if (suivant->window() == &fenetre && suivant->focusProxy() == nullptr && atteint(*suivant))
            controles.push_back(suivant);
    return controles;
}

std::vector<ToucheAlt> TouchesAlt(const QWidget &fenetre)
{
    std::vector<ToucheAlt> touches = cibles(fenetre);
    QString pris;
    for (const ToucheAlt &touche : touches)
        if (!touche.signe.isNull())
            pris += touche.signe;
    for (ToucheAlt &touche : touches) {
        if (!touche.signe.isNull())
            continue;
        touche.signe =
            signeLibre(touche.menu != nullptr ? touche.menu->text().trimmed() : NomDuControle(*touche.controle), pris);
        pris += touche.signe;
    }
    std::erase_if(touches, [](const ToucheAlt &touche) { return touche.signe.isNull(); });
    return touches;
}

QRect PlaceDe(const ToucheAlt &touche, const QWidget &fenetre)
{
    if (touche.menu != nullptr) {
        const QMenuBar *barre = static_cast<const QMainWindow &>(fenetre).menuBar();
        return touche.menu->isVisible() ? barre->actionGeometry(touche.menu).translated(barre->pos()) : QRect();
    }
    const QWidget &controle = *touche.controle;
    return controle.isVisible() && controle.isEnabled() ? QRect(controle.mapTo(&fenetre, QPoint()), controle.size())
                                                        : QRect();
}
