#include "photographe.h"

#include "incident.h"
#include "visite.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <tuple>

namespace demonstration {

namespace {

// In the order of the day.
const QStringView chronique[] = {
    u"joueurs",
    u"liste-joueurs",
    u"joueurs-appel",
    u"accueil",
    u"concours-vierge",
    u"concours-rempli",
    u"concours-enregistre",
    u"boite-numero-concours",
    u"equipes-vierge",
    u"equipes-licences",
    u"boite-club-nouveau",
    u"boite-panachees",
    u"equipes-panachee",
    u"equipes-main",
    u"equipes-correction",
    u"clubs",
    u"bureau-equipes",
    u"equipes-joueur-choisi",
    u"liste-equipes",
    u"resultats-avant-depart",
    u"resultats-tour-1",
    u"equipes-retardataire",
    u"boite-rencontre-lancee",
    u"boite-retardataire",
    u"impression-tirage",
    u"resultats-rencontre-appelee",
    u"resultats-gagnant-tape",
    u"resultats-mot",
    u"resultats-correction",
    u"resultats-tour-complet",
    u"resultats-lettres",
    u"boite-meme-club",
    u"boite-deja-rencontrees",
    u"boite-meilleur-tirage",
    u"rapport-tirage",
    u"affichage-reglages",
    u"affichage-tirage",
    u"affichage-classement",
    u"affichage-attendues",
    u"affichage-complet",
    u"vue-attendus",
    u"vue-classement",
    u"vue-joues",
    u"vue-attendus-lancee",
    u"vue-groupes",
    u"detail-equipe",
    u"vue-joues-triee",
    u"resultats-recopie",
    u"bureau-resultats",
    u"resultats-termine",
    u"impression-classement",
    u"palmares",
    u"palmares-noms",
    u"feuille-equipe",
    u"saison-clubs",
    u"boite-exportee",
    u"saison-licences",
    u"resultats-equipe-choisie",
    u"boite-copie",
    u"liste-concours",
    u"boite-suppression",
    u"outils-tirage",
    u"boite-alarme",
    u"outils",
    u"boite-importation",
    u"boite-equipe-importee",
    u"equipes-importees",
    u"copies",
    u"boite-copie-securite",
    u"boite-copie-ailleurs",
    u"boite-restauration",
    u"boite-restauree",
    u"boite-purge",
    u"boite-purge-reussie",
};

constexpr int hauteurTitre = 30;

/// Names of all pictures: those of the day in its order, then those of the walk through the forms.
const QStringList &catalogue()
{
    static const QStringList noms = [] {
        QStringList tous;
        for (const QStringView nom : chronique)
            tous += nom.toString();
        return tous + Visite::images();
    }();
    return noms;
}

QString fichier(qsizetype place)
{
    return u"%1-%2.png"_qs.arg(place + 1, 3, 10, QChar(u'0')).arg(catalogue()[place]);
}

bool estFenetre(const QWidget &fenetre)
{
    return fenetre.isVisible() && (fenetre.windowType() == Qt::Window || fenetre.windowType() == Qt::Dialog);
}

/// The desktop frames its windows; a picture without one has to do it, from the corner of the frame on.
void peintFenetre(QPainter &peintre, QWidget &fenetre, bool active)
{
    const QRect cadre = fenetre.frameGeometry();
    const QRect titre(cadre.topLeft(),
                      QSize(cadre.width(), std::max(hauteurTitre, fenetre.geometry().top() - cadre.top())));
    const QRect interieur(QPoint(fenetre.geometry().left(), titre.bottom() + 1), fenetre.size());
    peintre.fillRect(interieur.united(titre).adjusted(0, 0, 0, 1), QColor(0x22, 0x38, 0x4A));
    peintre.setPen(active ? QColor(Qt::white) : QColor(0xA8, 0xB4, 0xBE));
    peintre.drawText(titre.adjusted(12, 0, -12, 0), Qt::AlignVCenter | Qt::AlignLeft, fenetre.windowTitle());
    peintre.drawPixmap(interieur.topLeft(), fenetre.grab());
}

} // namespace

QStringList Photographe::fichiers()
{
    QStringList noms;
    for (qsizetype place = 0; place < catalogue().size(); ++place)
        noms += fichier(place);
    return noms;
}

void Photographe::garde(QStringView nom, const QImage &image)
{
    const qsizetype place = catalogue().indexOf(nom);
    exige(place >= 0, u"L'image « %1 » n'est pas au catalogue."_qs.arg(nom));
    const QString chemin = QDir(m_dossier).filePath(fichier(place));
    exige(image.save(chemin), u"L'image %1 ne peut pas être écrite."_qs.arg(QDir::toNativeSeparators(chemin)));
    m_prises += nom.toString();
}

void Photographe::prend(QStringView nom, QWidget &widget)
{
    if (!m_prises.contains(nom))
        garde(nom, widget.window()->grab().toImage());
}

void Photographe::prendBureau(QStringView nom, QWidget &fond, const QStringList &formes)
{
    if (m_prises.contains(nom))
        return;
    QImage bureau = fond.grab().toImage();
    QPainter peintre(&bureau);
    QWidgetList fenetres = QApplication::topLevelWidgets();
    const QWidget *devant = QApplication::activeWindow();
    // Nobody tells how windows lie on a screen that nobody sees, and their list has no order of its own.
    std::ranges::sort(fenetres, {}, [devant](const QWidget *fenetre) {
        return std::tuple(fenetre == devant, fenetre->x(), fenetre->y(), fenetre->objectName());
    });
    QStringList manquent = formes;
    for (QWidget *fenetre : std::as_const(fenetres)) {
        if (fenetre == &fond || !estFenetre(*fenetre))
            continue;
        peintFenetre(peintre, *fenetre, fenetre == devant);
        manquent.removeAll(fenetre->objectName());
    }
    peintre.end();
    exige(manquent.isEmpty(), u"L'image « %1 » ne montre pas : %2."_qs.arg(nom, manquent.join(u", "_qs)));
    garde(nom, bureau);
}

} // namespace demonstration
