#include "registration/fichier_equipes.h"

#include <QSaveFile>

namespace {

// Columns of the headings and of the lines: the team's number takes more room in the lines, and so they stay.
constexpr int largeurTitreEquipe = 10;
constexpr int largeurEquipe = 20;
constexpr int largeurSociete = 30;
constexpr int largeurJoueur = 40;
constexpr int largeurLicence = 15;
constexpr int retraitMembre = 50;

QString complete(const QString &texte, int largeur)
{
    return texte.leftJustified(largeur, u' ', true);
}

} // namespace

const QString FichierEquipes::nom = QStringLiteral("listEquipes.csv");

void FichierEquipes::titres(const QString &equipe, const QString &societe, const QString &joueur,
                            const QString &licence)
{
    ligne(complete(equipe, largeurTitreEquipe) + complete(societe, largeurSociete) + complete(joueur, largeurJoueur)
          + complete(licence, largeurLicence));
}

void FichierEquipes::membre(const QString &joueur, const QString &licence, const QString &equipe, const QString &club)
{
    ligne(QString(retraitMembre, u' ') + complete(joueur, largeurJoueur) + complete(licence, largeurLicence));
    ligne(complete(equipe, largeurEquipe) + complete(club, largeurSociete));
}

QString FichierEquipes::ecrit(const QString &chemin) const
{
    QSaveFile fichier(chemin);
    fichier.setDirectWriteFallback(true);
    const QByteArray octets = QByteArrayLiteral("\xEF\xBB\xBF") + m_texte.toUtf8();
    const bool ecrit = fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size() && fichier.commit();
    return ecrit ? QString() : fichier.errorString();
}
