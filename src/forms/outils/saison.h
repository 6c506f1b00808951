#pragma once

#include "outils/forme_outil.h"
#include "outils/table_saison.h"

#include <array>
#include <memory>

namespace Ui {
class Saison;
}
class ModeleSaison;

/// The season: all competitions of the base, and what clubs and licences have done in them.
class FormeSaison : public FormeOutil
{
    Q_OBJECT

public:
    FormeSaison(const Contexte &contexte, QWidget *parent);
    ~FormeSaison() override;

    void Form_Load() override;
    void Form_Activate() override;
    /// Reckons the season anew.
    void Rafraichir() override;

protected:
    void traduit() override;

private:
    /// What the list is sorted by; the head itself turns its arrow round before it tells of a click.
    struct Tri
    {
        int colonne;
        Qt::SortOrder ordre;
    };

    bool aRelire();
    void lit();
    void filtre();
    void Tout_Click();
    void proposeDates();
    void proposeTypes();
    void montre();
    void remplit();
    void montreCourbe();
    void montreTri();
    void trie(int colonne);
    VueSaison vue() const;
    std::optional<Tri> &tri() { return m_tris[std::size_t(vue())]; }
    QString cle(int ligne) const;
    QStringList dates() const;
    QString titre() const;
    std::vector<QStringList> textes(bool choisiesSeules) const;
    void Copier_Click();
    void Exporter_Click();
    void Imprimer_Click();

    std::unique_ptr<Ui::Saison> m_ui;
    std::unique_ptr<ModeleSaison> m_modele;
    Saison m_saison;
    std::weak_ptr<const void> m_base; ///< The opening of the file that was read.
    int m_changements = -1; ///< Rows that its connection had changed then.
    std::vector<JourDeSaison> m_jours;
    std::array<std::optional<Tri>, 3> m_tris; ///< Of each view; nothing as long as it stands in its own order.
    FiltreSaison m_filtre; ///< What the operator has chosen; without that a date follows the base.
};
