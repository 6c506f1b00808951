#include "outils/vue_publique.h"

#include "noms/mesures_horloge.h"
#include "partage/routines.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// Sizes on a screen of 1920 x 1080; unite() brings them to the one at hand.
constexpr QSizeF modele(1920, 1080);
constexpr double marge = 40;
constexpr double hautTete = 24;
constexpr double hauteurTete = 92;
constexpr double hautCorps = 136;
constexpr double hauteurPied = 56;
constexpr double hauteurBarre = 14;
constexpr double tailleTitre = 60;
constexpr double tailleDrapeau = 50;
constexpr double taillePied = 36;
constexpr BornesLettre lettres{32, 130};
constexpr double tailleMesure = 1000; // letters are measured at this size, and scaled

constexpr double ecartColonnes = 0.5; // letters
constexpr double debordBande = 0.35;
constexpr double ecartListes = 4; // at most, between the columns of lines
constexpr double petitTitre = 0.6; // of a heading, in the letters of its lines
constexpr double retrecissement = 0.8; // least size of a text that is longer than its column, before it is cut

QFont police(double taille, bool gras)
{
    QFont voulue(QApplication::font().family());
    voulue.setPixelSize(std::max(1, int(taille)));
    voulue.setWeight(gras ? QFont::Bold : QFont::Normal);
    voulue.setHintingPreference(QFont::PreferNoHinting); // a text grows in proportion to its letters
    return voulue;
}

QString duree(qint64 secondes)
{
    const QString suite = u':' + ZeroPad(secondes / 60 % 60, 2) + u':' + ZeroPad(secondes % 60, 2);
    return secondes >= 3600 ? QString::number(secondes / 3600) + suite : suite.mid(1);
}

} // namespace

VuePublique::VuePublique(const Contexte &contexte)
    : QWidget(nullptr, Qt::Window | Qt::WindowDoesNotAcceptFocus)
    , m_contexte(contexte)
{
    setObjectName(u"VuePublique"_qs);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::BlankCursor);
    setMinimumSize(320, 180);
}

double VuePublique::unite() const
{
    return std::min(width() / modele.width(), height() / modele.height());
}

QRectF VuePublique::corps() const
{
    const double u = unite();
    return QRectF(rect()).adjusted(marge * u, hautCorps * u, -marge * u, -(hauteurPied + hauteurBarre) * u);
}

QRectF VuePublique::barre() const
{
    const double haut = hauteurBarre * unite();
    return {0, height() - haut, double(width()), haut};
}

/// In letters.
double VuePublique::largeurTexte(const QString &texte, bool gras) const
{
    QHash<QString, double> &connues = m_largeurs[gras ? 1 : 0];
    const auto connue = connues.constFind(texte);
    if (connue != connues.cend())
        return *connue;
    const double largeur = QFontMetricsF(police(tailleMesure, gras)).horizontalAdvance(texte) / tailleMesure;
    connues.insert(texte, largeur);
    return largeur;
}

void VuePublique::montre(const EtatPublic &etat)
{
    m_etat = etat;
    remet();
}

void VuePublique::regle(const std::array<bool, genresDePage> &pages, int secondes, bool sombre)
{
    m_pages = pages;
    m_theme = sombre ? &themeSombre : &themeClair;
    m_carrousel.regle(secondes * qint64(1000));
    remet();
}

void VuePublique::suivante()
{
    m_carrousel.suivante();
    compose();
}

void VuePublique::pause(bool tenue)
{
    m_carrousel.pause(tenue);
    compose();
}

void VuePublique::bat(qint64 ecoule)
{
    if (m_carrousel.avance(ecoule)) {
        compose();
        return;
    }
    if (empreinteHorloge() != m_heureMontree)
        compose();
    else if (!m_carrousel.enPause())
        update(barre().toAlignedRect());
}

VuePublique::Mise VuePublique::met(GenrePage genre) const
{
    Mise mise;
    mise.liste = ListesPubliques::liste(m_contexte.partage, m_etat, genre);
    const ListePublique &liste = mise.liste;
    mise.largeurs.assign(liste.colonnes.size(), 0);
    const auto compte = [&](const std::vector<CellulePublique> &cellules) {
        for (std::size_t i = 0; i < cellules.size(); ++i)
            mise.largeurs[i] = std::max(mise.largeurs[i], largeurTexte(cellules[i].texte, cellules[i].grasse));
    };
    compte(liste.entetes);
    double intertitre = 0;
    for (const LignePublique &ligne : liste.lignes) {
        compte(ligne.cellules);
        intertitre = std::max(intertitre, largeurTexte(ligne.intertitre, true));
    }
    const std::vector<double> entieres = mise.largeurs;
    for (std::size_t i = 0; i < liste.colonnes.size(); ++i) {
        if (liste.colonnes[i].plafond > 0)
            mise.largeurs[i] = std::min(mise.largeurs[i], liste.colonnes[i].plafond);
        mise.largeur += mise.largeurs[i] + (i > 0 ? ecartColonnes : 0);
    }
    mise.largeur = std::max(mise.largeur, retrecissement * intertitre) + 2 * debordBande;
    const BornesLettre bornes{lettres.petite * unite(), lettres.grande * unite()};
    mise.colonnes =
        metEnColonnes(int(liste.lignes.size()), mise.largeur, corps().size(), bornes, !liste.entetes.empty());
    elargit(mise, entieres);
    return mise;
}

/// Gives the room that the letters have left to the columns that are cut short; \p entieres are their whole widths.
void VuePublique::elargit(Mise &mise, const std::vector<double> &entieres) const
{
    const MiseEnColonnes &colonnes = mise.colonnes;
    if (colonnes.pages == 0)
        return;
    const double gouttieres = (colonnes.colonnes - 1) * MiseEnColonnes::gouttiere;
    const double reste = (corps().width() / colonnes.lettre - gouttieres) / colonnes.colonnes - mise.largeur;
    double manque = 0;
    for (std::size_t i = 0; i < entieres.size(); ++i)
        manque += entieres[i] - mise.largeurs[i];
    if (manque <= 0 || reste <= 0)
        return;
    const double part = std::min(1.0, reste / manque);
    for (std::size_t i = 0; i < entieres.size(); ++i)
        mise.largeurs[i] += part * (entieres[i] - mise.largeurs[i]);
    mise.largeur += part * manque;
}

/// Title, lists, widths and pages, all anew. A kind of page that has nothing to show is left out; the clock stands in
/// for all.
void VuePublique::remet()
{
    setWindowTitle(tr("Affichage public"));
    std::vector<Feuillet> feuillets;
    for (int i = 0; i < genresDePage; ++i) {
        const auto genre = GenrePage(i);
        if (!m_pages[std::size_t(i)])
            continue;
        m_mises[std::size_t(i)] = met(genre);
        const int pages = genre == GenrePage::Horloge ? 1 : m_mises[std::size_t(i)].colonnes.pages;
        for (int page = 0; page < pages; ++page)
            feuillets.push_back({genre, page});
    }
    if (feuillets.empty())
        feuillets.push_back({GenrePage::Horloge, 0});
    m_carrousel.prend(std::move(feuillets));
    compose();
}

QString VuePublique::heure() const
{
    const QTime maintenant = m_contexte.partage.horloge.heure();
    const bool secondes = m_carrousel.feuillet().genre == GenrePage::Horloge;
    return maintenant.toString(secondes ? u"HH:mm:ss"_qs : u"HH:mm"_qs);
}

/// Changes with whatever moves on the page but the bar.
QString VuePublique::empreinteHorloge() const
{
    QString texte = heure();
    if (m_carrousel.feuillet().genre != GenrePage::Horloge)
        return texte;
    const MesuresHorloge &mesures = mesuresHorloge(m_contexte.formulaires);
    for (const auto &mesure : {mesures.chronometre, mesures.alarme}) {
        const std::optional<qint64> secondes = mesure ? mesure() : std::nullopt;
        texte += u'|' + (secondes ? duree(*secondes) : QString());
    }
    return texte;
}

void VuePublique::pose(const QRectF &cadre, const QString &texte, double taille, const QColor &encre, bool gras,
                       Qt::Alignment cadrage)
{
    if (texte.isEmpty())
        return;
    const double largeur = largeurTexte(texte, gras) * taille;
    const double tient = largeur > cadre.width() ? taille * cadre.width() / largeur : taille;
    m_textes.push_back({cadre, texte, tient, gras, cadrage | Qt::AlignVCenter, encre});
}

void VuePublique::compose()
{
    m_textes.clear();
    m_bandes.clear();
    m_heureMontree = empreinteHorloge();
    composeTete();
    if (m_carrousel.feuillet().genre == GenrePage::Horloge)
        composeHorloge();
    else
        composeListe();
    composePied();
    update();
}

/// The title, how far the competition is, and the time.
void VuePublique::composeTete()
{
    const double u = unite();
    const Feuillet &feuillet = m_carrousel.feuillet();
    const QRectF tete(marge * u, hautTete * u, width() - 2 * marge * u, hauteurTete * u);
    const bool avecHeure = feuillet.genre != GenrePage::Horloge;
    const double largeurHeure = avecHeure ? 180 * u : 0;
    const QString drapeau = ListesPubliques::drapeau(m_etat);
    const double voulue = largeurTexte(drapeau, true) * tailleDrapeau * u + 2 * marge * u;
    const double largeurDrapeau = drapeau.isEmpty() ? 0 : std::min(voulue, tete.width() * 0.48);
    m_drapeau = {tete.right() - largeurHeure - largeurDrapeau, tete.top(), largeurDrapeau, tete.height()};
    pose(m_drapeau.adjusted(marge * u / 2, 0, -marge * u / 2, 0), drapeau, tailleDrapeau * u, m_theme->encreDrapeau,
         true, Qt::AlignHCenter);
    const QRectF titre(tete.topLeft(), QSizeF(m_drapeau.left() - tete.left() - marge * u, tete.height()));
    pose(titre, ListesPubliques::titre(m_etat, feuillet.genre), tailleTitre * u, m_theme->accent, true);
    if (avecHeure)
        pose({tete.right() - largeurHeure, tete.top(), largeurHeure, tete.height()}, heure(), tailleDrapeau * u,
             m_theme->encre, true, Qt::AlignRight);
}

void VuePublique::composePied()
{
    const double u = unite();
    const QRectF pied(marge * u, height() - (hauteurPied + hauteurBarre) * u, width() - 2 * marge * u, hauteurPied * u);
    const int pages = m_carrousel.pagesDuGenre();
    QString page = pages > 1 ? u"%1 / %2"_qs.arg(m_carrousel.feuillet().numero + 1).arg(pages) : QString();
    if (m_carrousel.enPause())
        page = page.isEmpty() ? tr("Pause") : page + u" – "_qs + tr("Pause");
    const double gauche = pied.width() * 0.7;
    pose({pied.topLeft(), QSizeF(gauche, pied.height())}, ListesPubliques::dernierResultat(m_contexte.partage, m_etat),
         taillePied * u, m_theme->discrete);
    pose({pied.left() + gauche, pied.top(), pied.width() - gauche, pied.height()}, page, taillePied * u,
         m_theme->discrete, true, Qt::AlignRight);
}

/// The lines of one page, column after column, in the middle of it.
void VuePublique::composeListe()
{
    const Feuillet &feuillet = m_carrousel.feuillet();
    const Mise &mise = m_mises[std::size_t(feuillet.genre)];
    const MiseEnColonnes &colonnes = mise.colonnes;
    const QRectF place = corps();
    const double pas = colonnes.lettre * MiseEnColonnes::interligne;
    const double largeur = mise.largeur * colonnes.lettre;
    const double pasColonne = colonnes.colonnes < 2
        ? 0
        : std::min((place.width() - largeur) / (colonnes.colonnes - 1), largeur + ecartListes * colonnes.lettre);
    const double bord = place.left() + (place.width() - largeur - pasColonne * (colonnes.colonnes - 1)) / 2;
    const int entete = mise.liste.entetes.empty() ? 0 : 1;
    for (int rang = 0; rang < colonnes.parPage(); ++rang) {
        const std::size_t ligne = std::size_t(feuillet.numero) * std::size_t(colonnes.parPage()) + std::size_t(rang);
        if (ligne >= mise.liste.lignes.size())
            break;
        const int colonne = rang / colonnes.lignes;
        const int dansColonne = rang % colonnes.lignes;
        const double gauche = bord + pasColonne * colonne;
        if (entete == 1 && dansColonne == 0)
            composeLigne(mise, mise.liste.entetes, {gauche, place.top()}, colonnes.lettre * petitTitre);
        const QRectF cadre(gauche, place.top() + (dansColonne + entete) * pas, largeur, pas);
        const LignePublique &montree = mise.liste.lignes[ligne];
        if (!montree.intertitre.isEmpty()) {
            pose(cadre, montree.intertitre, colonnes.lettre, m_theme->accent, true);
            continue;
        }
        if (dansColonne % 2 == 0)
            m_bandes.push_back(cadre);
        composeLigne(mise, montree.cellules, cadre.topLeft(), colonnes.lettre);
    }
}

/// The text of the cell, cut short where it is wider than so many letters.
QString VuePublique::abrege(const CellulePublique &cellule, double largeur) const
{
    if (largeurTexte(cellule.texte, cellule.grasse) <= largeur)
        return cellule.texte;
    const QFontMetricsF mesure(police(tailleMesure, cellule.grasse));
    return mesure.elidedText(cellule.texte, Qt::ElideRight, largeur * tailleMesure);
}

void VuePublique::composeLigne(const Mise &mise, const std::vector<CellulePublique> &cellules, QPointF coin,
                               double taille)
{
    const double lettre = mise.colonnes.lettre;
    const QColor encres[] = {m_theme->encre, m_theme->discrete, m_theme->gagnante};
    double gauche = coin.x() + debordBande * lettre;
    for (std::size_t i = 0; i < cellules.size(); ++i) {
        const double largeur = mise.largeurs[i] * lettre;
        pose({gauche, coin.y(), largeur, lettre * MiseEnColonnes::interligne},
             abrege(cellules[i], largeur / taille / retrecissement), taille, encres[int(cellules[i].encre)],
             cellules[i].grasse, mise.liste.colonnes[i].cadrage);
        gauche += largeur + ecartColonnes * lettre;
    }
}

void VuePublique::composeHorloge()
{
    const QRectF place = corps();
    struct Mesure
    {
        QString nom;
        qint64 secondes;
    };
    std::vector<Mesure> mesures;
    const MesuresHorloge &outils = mesuresHorloge(m_contexte.formulaires);
    if (const auto secondes = outils.chronometre ? outils.chronometre() : std::nullopt)
        mesures.push_back({tr("Chronomètre"), *secondes});
    if (const auto secondes = outils.alarme ? outils.alarme() : std::nullopt)
        mesures.push_back({*secondes > 0 ? tr("Alarme dans") : tr("Alarme"), *secondes});

    const double partHeure = mesures.empty() ? 1 : 0.55;
    QRectF cadre(place.topLeft(), QSizeF(place.width(), place.height() * partHeure));
    pose(cadre, heure(), cadre.height() * 0.62, m_theme->encre, true, Qt::AlignHCenter);
    cadre = {place.left(), cadre.bottom(), place.width() / double(std::max<std::size_t>(mesures.size(), 1)),
             place.height() - cadre.height()};
    for (const Mesure &mesure : mesures) {
        const double hauteurNom = cadre.height() * 0.3;
        pose({cadre.topLeft(), QSizeF(cadre.width(), hauteurNom)}, mesure.nom, hauteurNom * 0.6, m_theme->discrete,
             false, Qt::AlignHCenter);
        pose(cadre.adjusted(0, hauteurNom, 0, 0), duree(mesure.secondes), (cadre.height() - hauteurNom) * 0.7,
             m_theme->accent, true, Qt::AlignHCenter);
        cadre.translate(cadre.width(), 0);
    }
}

void VuePublique::paintEvent(QPaintEvent *evenement)
{
    QPainter peintre(this);
    const QRectF touche = evenement->rect();
    peintre.fillRect(touche, m_theme->fond);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    for (const QRectF &bande : m_bandes) {
        if (bande.intersects(touche))
            peintre.fillRect(bande, m_theme->bande);
    }
    if (!m_drapeau.isEmpty() && m_drapeau.intersects(touche)) {
        peintre.setBrush(m_theme->fondDrapeau);
        peintre.drawRoundedRect(m_drapeau, m_drapeau.height() / 6, m_drapeau.height() / 6);
    }
    for (const TextePose &texte : m_textes) {
        if (!texte.cadre.intersects(touche))
            continue;
        peintre.setFont(police(texte.taille, texte.gras));
        peintre.setPen(texte.encre);
        peintre.drawText(texte.cadre, int(texte.cadrage) | Qt::TextSingleLine | Qt::TextDontClip, texte.texte);
    }
    const QRectF cadreBarre = barre();
    peintre.fillRect(cadreBarre, m_theme->glissiere);
    peintre.fillRect(QRectF(cadreBarre.topLeft(),
                            QSizeF(cadreBarre.width() * std::min(m_carrousel.part(), 1.0), cadreBarre.height())),
                     m_theme->accent);
}

void VuePublique::resizeEvent(QResizeEvent *)
{
    remet();
}

void VuePublique::changeEvent(QEvent *evenement)
{
    if (evenement->type() == QEvent::LanguageChange || evenement->type() == QEvent::FontChange) {
        for (QHash<QString, double> &connues : m_largeurs)
            connues.clear();
        remet();
    }
    QWidget::changeEvent(evenement);
}

void VuePublique::closeEvent(QCloseEvent *evenement)
{
    evenement->ignore();
    Q_EMIT fermee();
}
