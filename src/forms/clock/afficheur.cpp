#include "clock/afficheur.h"

#include <QFontMetricsF>
#include <QResizeEvent>

namespace {

constexpr int policeEssai = 100; // pixels
constexpr int policeMinimale = 15; // pixels
constexpr double partHauteur = 0.8; // of a line of text that its letters take

} // namespace

void Afficheur::setText(const QString &texte)
{
    const bool autreLongueur = texte.size() != text().size();
    QLabel::setText(texte);
    if (autreLongueur)
        ajustePolice();
}

void Afficheur::resizeEvent(QResizeEvent *evenement)
{
    QLabel::resizeEvent(evenement);
    ajustePolice();
}

/// Another colour from the style sheet brings the letters of the style sheet with it.
void Afficheur::changeEvent(QEvent *evenement)
{
    QLabel::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        ajustePolice();
}

void Afficheur::ajustePolice()
{
    QFont police = font();
    police.setBold(true);
    police.setPixelSize(policeEssai);
    const double largeurEssai = QFontMetricsF(police).horizontalAdvance(text());
    const double enHauteur = contentsRect().height() * partHauteur;
    const double enLargeur = largeurEssai > 0 ? contentsRect().width() * policeEssai / largeurEssai : enHauteur;
    police.setPixelSize(std::max(int(std::min(enHauteur, enLargeur)), policeMinimale));
    setFont(police);
}
