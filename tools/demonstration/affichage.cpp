#include "affichage.h"

#include "outils/vue_publique.h"

#include <QApplication>
#include <QScreen>
#include <QTest>

namespace demonstration {

namespace {

const QString reglages = u"AffichagePublic"_qs;
constexpr int pagesAuPlus = 100;

} // namespace

VuePublique *Affichage::vue() const
{
    for (QWidget *fenetre : QApplication::topLevelWidgets()) {
        if (auto *vue = qobject_cast<VuePublique *>(fenetre))
            return vue;
    }
    throw Incident(u"L'affichage public n'est pas ouvert."_qs);
}

bool Affichage::dit(const QString &texte) const
{
    return std::ranges::any_of(vue()->textes(), [&](const TextePose &pose) { return pose.texte.contains(texte); });
}

void Affichage::tourneVers(const QString &titre)
{
    for (int page = 0; !dit(titre); ++page) {
        exige(page < pagesAuPlus, u"L'affichage public n'a pas de page « %1 »."_qs.arg(titre));
        m_main.clique(m_main.controle(reglages, u"Suivante"_qs));
    }
}

void Affichage::ouvre(int tour)
{
    m_main.touche(Qt::Key_F8);
    m_main.exigeFocus(reglages, u"Afficher"_qs);
    m_main.clique(m_main.controle(reglages, u"Afficher"_qs));
    // A screen without a desktop gives the focus to whatever comes up.
    m_main.fenetre(reglages)->activateWindow();
    QCoreApplication::processEvents();
    if (QGuiApplication::screens().size() > 1)
        exige(vue()->geometry() == QGuiApplication::screens().at(1)->geometry(),
              u"L'affichage public ne remplit pas le second écran."_qs);
    exige(dit(u"Tirage du tour %1"_qs.arg(tour)), u"L'affichage public ne montre pas le tirage."_qs);
    m_photographe.prend(u"affichage-reglages", *m_main.fenetre(reglages));
    m_photographe.prend(u"affichage-tirage", *vue());
    tourneVers(u"Classement"_qs);
    m_photographe.prend(u"affichage-classement", *vue());
    tourneVers(u"Rencontres attendues"_qs);
    m_main.touche(Qt::Key_F12);
    m_photographe.prend(u"affichage-attendues", *vue());
    m_main.touche(Qt::Key_F12);
    m_main.clique(m_main.controle(reglages, u"Fermer"_qs));
}

void Affichage::ferme()
{
    exige(QTest::qWaitFor([this] { return dit(u", complet"_qs) || dit(u"Concours terminé"_qs); }),
          u"L'affichage public n'a pas vu le dernier résultat."_qs);
    exige(dit(u"Dernier résultat"_qs), u"L'affichage public ne dit pas le dernier résultat."_qs);
    m_photographe.prend(u"affichage-complet", *vue());
    vue()->close();
    QCoreApplication::processEvents();
}

} // namespace demonstration
