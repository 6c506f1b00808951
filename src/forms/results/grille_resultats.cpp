#include "results/grille_resultats.h"

#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "partage/partage.h"

#include <QComboBox>

namespace grille {

qint64 concoursAffiche(const Partage &partage, const Formulaires &formulaires)
{
    const Formulaire *saisie = formulaires.forme(formes::EResultats);
    const auto *liste = saisie == nullptr ? nullptr : saisie->findChild<QComboBox *>(u"listconcours"_qs);
    return liste == nullptr ? partage.ConcoursCourant : store::Valeur(liste->currentText()).entier();
}

void serreClassement(FlexGrid &grille, int nombres)
{
    grille.setColWidth(0, largeurRang);
    grille.setColWidth(1, largeurEquipe);
    for (int colonne = 2; colonne < grille.Cols(); ++colonne)
        grille.setColWidth(colonne, colonne < 2 + nombres ? largeurNombre : largeurPoints);
    grille.setColWidth(grille.Cols() - 1, largeurNombre);
}

void LargeursUtiles::note(int colonne, const QString &texte, bool gras)
{
    if (m_plusLongs.size() <= std::size_t(colonne))
        m_plusLongs.resize(std::size_t(colonne) + 1);
    Texte &plusLong = m_plusLongs[std::size_t(colonne)];
    if (texte.size() > plusLong.texte.size() || (texte.size() == plusLong.texte.size() && gras && !plusLong.gras))
        plusLong = {texte, gras};
}

void LargeursUtiles::applique(FlexGrid &grille) const
{
    for (int colonne = 0; colonne < int(m_plusLongs.size()); ++colonne) {
        const auto &[texte, gras] = m_plusLongs[std::size_t(colonne)];
        const int largeur = grille.LargeurTexte(texte, gras);
        if (largeur > grille.ColWidth(colonne))
            grille.setColWidth(colonne, largeur);
    }
}

} // namespace grille
