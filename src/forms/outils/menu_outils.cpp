#include "outils/menu_outils.h"

#include "fenetres/formulaires.h"
#include "noms/apres_tirage.h"
#include "noms/formes.h"
#include "outils/rapport_tirage.h"

#include <QEvent>

namespace {

struct Entree
{
    NomForme forme;
    QKeySequence touche;
    const char *texte;
};

/// In the order of the menu; texts are marked with QT_TRANSLATE_NOOP("MenuOutils", ...).
const std::vector<Entree> &entrees()
{
    static const std::vector<Entree> lignes{
        {formes::RapportTirage, Qt::Key_F7, QT_TRANSLATE_NOOP("MenuOutils", "&Rapport du tirage")},
        {formes::AffichagePublic, Qt::Key_F8, QT_TRANSLATE_NOOP("MenuOutils", "&Affichage public")},
        {formes::CopiesSecurite, Qt::Key_F9, QT_TRANSLATE_NOOP("MenuOutils", "&Copies de sécurité")},
        {formes::Saison, {}, QT_TRANSLATE_NOOP("MenuOutils", "&Saison")},
    };
    return lignes;
}

} // namespace

MenuOutils::MenuOutils(const Contexte &contexte, QWidget *parent)
    : QMenu(parent)
    , m_contexte(contexte)
{
    setObjectName(u"Outils"_qs);
    for (const Entree &entree : entrees()) {
        QAction *action = addAction(QString());
        action->setObjectName(u"mnu_"_qs + entree.forme);
        action->setShortcut(entree.touche);
        // The forms are windows of their own: the keys count in each of them.
        action->setShortcutContext(Qt::ApplicationShortcut);
        connect(action, &QAction::triggered, this,
                [this, &entree] { Execute(m_contexte.boites, [&] { montre(entree.forme); }); });
    }
    traduit();
    apresTirage(contexte.formulaires).traite = [contexte] { MontreRapportApresTirage(contexte); };
}

void MenuOutils::montre(NomForme forme)
{
    m_contexte.formulaires.Cache(formes::Accueil);
    m_contexte.formulaires.Montre(forme);
}

void MenuOutils::traduit()
{
    setTitle(tr("&Outils"));
    for (std::size_t i = 0; i < entrees().size(); ++i)
        actions().at(qsizetype(i))->setText(tr(entrees()[i].texte));
}

void MenuOutils::changeEvent(QEvent *evenement)
{
    if (evenement->type() == QEvent::LanguageChange)
        traduit();
    QMenu::changeEvent(evenement);
}
