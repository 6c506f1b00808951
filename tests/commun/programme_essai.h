#pragma once

#include "app/programme.h"
#include "commun/boites_script.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

class QLineEdit;
class QComboBox;

/// Lets a failed comparison show the texts instead of their bytes.
inline void PrintTo(const QString &texte, std::ostream *sortie)
{
    *sortie << '"' << texte.toStdString() << '"';
}

/// A clock that stands still.
class HorlogeFixe final : public Horloge
{
public:
    QDate jour() const override { return QDate(2026, 5, 3); }
    QTime heure() const override { return QTime(14, 30); }
};

/// The whole program on a base of its own: tests press keys and buttons and look at fields and rows.
class ProgrammeEssai : public testing::Test
{
protected:
    /// A competition as a test wants it; the type decides the players a team.
    struct Concours
    {
        QString type = u"1 - Doublettes"_qs;
        QString lieu = u"Draguignan"_qs;
        QString categorie = u"Seniors"_qs;
        QDate date = QDate(2026, 5, 3);
        bool repeche = false;
    };

    ProgrammeEssai();
    ~ProgrammeEssai() override;

    void SetUp() override;
    void TearDown() override;

    /// Closes the program, and with it the base, and starts it again on the same folder.
    void redemarre();

    // The program
    Partage &partage() { return m_programme->partage(); }
    Formulaires &formulaires() { return m_programme->formulaires(); }
    BoitesScript &boites() { return m_boites; }
    QString dossier() const { return m_dossier.path(); }
    void clicFamille(const QString &bouton);
    /// Clicks a button of the main window and waits for the form that it opens.
    void ouvreFamille(const QString &bouton, const QString &forme);

    // What the operator sees
    Formulaire *forme(const QString &nom) { return formulaires().forme(nom); }
    QWidget *controle(const QString &nomForme, const QString &nom);
    QLineEdit *champ(const QString &nomForme, const QString &nom);
    QComboBox *liste(const QString &nomForme, const QString &nom);
    /// Text of a field, a list, a label or a button.
    QString texte(const QString &nomForme, const QString &nom);
    bool visible(const QString &nomForme, const QString &nom);
    /// Name of the control that has the focus.
    QString focus() const;

    // What the operator does
    /// Brings a form to the front, as a click in it does.
    void active(const QString &nomForme);
    /// Presses the keys of \p texte in the control that has the focus.
    void tape(const QString &texte);
    void touche(Qt::Key touche, Qt::KeyboardModifiers touches = Qt::NoModifier);
    void entre() { touche(Qt::Key_Return); }
    void clic(const QString &nomForme, const QString &nom);
    /// Clicks a field, then types \p texte in the place of what it holds.
    void remplit(const QString &nomForme, const QString &nom, const QString &texte);

    // What the store holds
    qint32 creeConcours(const Concours &concours);
    void execute(const QString &sql) { partage().BaseDonnees.Execute(sql); }
    /// Runs a statement past the program's dialect, to damage the base on purpose.
    void abime(const QString &sql);
    /// Rows of a statement, their fields joined by "|".
    QStringList lignes(const QString &sql);
    qint64 nombre(const QString &sql);

private:
    void demarre();

    QTemporaryDir m_dossier;
    AleaFixe m_alea{1};
    HorlogeFixe m_horloge;
    BoitesScript m_boites;
    std::unique_ptr<Programme> m_programme;
};
