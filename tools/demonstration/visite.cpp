#include "visite.h"

#include "grille/flexgrid.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QTest>

namespace demonstration {

namespace {

struct Langue
{
    QString image; ///< How the pictures' names begin.
    QString designation;
};
/// French comes last: the walk ends as it began.
const Langue chacune[] = {{u"anglais"_qs, u"English"_qs},        {u"allemand"_qs, u"Deutsch"_qs},
                          {u"espagnol"_qs, u"Español"_qs},       {u"italien"_qs, u"Italiano"_qs},
                          {u"neerlandais"_qs, u"Nederlands"_qs}, {u"francais"_qs, u"Français"_qs}};

const QString formes[] = {u"Accueil"_qs,    u"Econcours"_qs,      u"Eequipes"_qs,      u"Ejoueurs"_qs,
                          u"Listesoc"_qs,   u"Listco"_qs,         u"listeq"_qs,        u"listjo"_qs,
                          u"EResultats"_qs, u"manqres"_qs,        u"valresu"_qs,       u"Groupes"_qs,
                          u"I_tirage"_qs,   u"palmares"_qs,       u"Resusoc"_qs,       u"FrmHorloge"_qs,
                          u"langues"_qs,    u"CopiesSecurite"_qs, u"RapportTirage"_qs, u"AffichagePublic"_qs,
                          u"Saison"_qs};
const QString mobiles[] = {u"EResultats"_qs, u"manqres"_qs,  u"Accueil"_qs, u"Listesoc"_qs,
                           u"Resusoc"_qs,    u"Listco"_qs,   u"listjo"_qs,  u"Eequipes"_qs,
                           u"Econcours"_qs,  u"Ejoueurs"_qs, u"listeq"_qs};

struct Taille
{
    QString image;
    int pourcent;
};
const Taille echelles[] = {{u"reduit"_qs, 60}, {u"agrandi"_qs, 250}};

QString nomImage(const QString &debut, const QString &forme)
{
    return debut + u'-' + forme.toLower();
}

} // namespace

QStringList Visite::images()
{
    QStringList noms;
    for (const Langue &langue : chacune) {
        noms += langue.image + u"-bureau"_qs;
        for (const QString &forme : formes)
            noms += nomImage(langue.image, forme);
    }
    for (const Taille &taille : echelles) {
        for (const QString &forme : mobiles)
            noms += nomImage(taille.image, forme);
    }
    return noms;
}

void Visite::choisit(const QString &langue)
{
    m_main.menu(u"traduction"_qs)->trigger();
    auto *liste = m_main.controle<QComboBox>(u"langues"_qs, u"Qlang"_qs);
    exige(QTest::qWaitForWindowActive(m_main.fenetre(u"langues"_qs)), u"Le choix de la langue ne vient pas devant."_qs);
    liste->setFocus();
    QTest::keyClicks(liste, langue.left(1));
    QTest::keyClicks(liste->view(), langue.mid(1, 1));
    QTest::keyClick(liste->view(), Qt::Key_Return);
    QCoreApplication::processEvents();
    exige(liste->currentText() == langue, u"La langue %1 n'a pas pu être choisie."_qs.arg(langue));
}

void Visite::ouvre(const QString &forme)
{
    Formulaires &registre = m_programme.formulaires();
    const QString resultats = u"EResultats"_qs;
    const QString palmares = u"palmares"_qs;
    if (forme == u"manqres" || forme == u"valresu") {
        ouvre(resultats);
        m_main.clique(m_main.controle(resultats, forme == u"manqres" ? u"manquants"_qs : u"VALIDATION"_qs));
    } else if (forme == u"Groupes") {
        ouvre(u"manqres"_qs);
        registre.Montre(NomForme(forme));
    } else if (forme == u"Resusoc") {
        ouvre(palmares);
        auto *grille = m_main.controle<FlexGrid>(palmares, u"Thonneur_1"_qs);
        int ligne = 1;
        while (ligne < grille->Rows() - 1 && !grille->TextMatrix(ligne, 1).contains(u" bat "))
            ++ligne;
        m_main.cliqueCellule(grille, ligne, 1, Qt::LeftButton, Qt::ControlModifier);
    } else {
        registre.Montre(NomForme(forme));
        if (forme == u"CopiesSecurite") {
            const QWidget *restaurer = m_main.controle(forme, u"Restaurer"_qs);
            exige(QTest::qWaitFor([restaurer] { return restaurer->isEnabled(); }), u"La copie ne se lit pas."_qs);
        }
    }
    QCoreApplication::processEvents();
}

/// Unloaded from outside the event loop, forms would go at the next events that a handler lets run, in the midst of the
/// activation of a window. They go now.
void Visite::dechargeTout()
{
    m_programme.formulaires().DechargeTout();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Visite::passeFormes(const QString &debut)
{
    for (const QString &forme : formes) {
        ouvre(forme);
        m_photographe.prend(nomImage(debut, forme), *m_main.fenetre(forme));
        dechargeTout();
        QCoreApplication::processEvents();
    }
}

void Visite::langues()
{
    for (const Langue &langue : chacune) {
        choisit(langue.designation);
        m_photographe.prendBureau(langue.image + u"-bureau"_qs, *m_main.fenetre(u"Torvik"_qs), {u"langues"_qs});
        dechargeTout();
        passeFormes(langue.image);
    }
    dechargeTout();
}

void Visite::tailles()
{
    for (const QString &forme : mobiles) {
        ouvre(forme);
        QWidget &fenetre = *m_main.fenetre(forme);
        const QSize premiere = fenetre.size();
        for (const Taille &taille : echelles) {
            fenetre.resize(premiere * taille.pourcent / 100);
            QCoreApplication::processEvents();
            m_photographe.prend(nomImage(taille.image, forme), fenetre);
        }
        dechargeTout();
        QCoreApplication::processEvents();
    }
}

} // namespace demonstration
