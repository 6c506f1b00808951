#pragma once

#include "commun/programme_pilote.h"

/// A started program in each test of a fixture, whose boxes have all come when the test ends.
class ProgrammeEssai : public testing::Test, protected ProgrammePilote
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Closes the program, and with it the base, and starts it again on the same folder.
    void redemarre();
    /// Clicks a button of the main window and waits for the form that it opens.
    void ouvreFamille(const QString &bouton, const QString &nomForme);
    /// Brings a form to the front, as a click in it does.
    void active(const QString &nomForme);
    void entre() { touche(Qt::Key_Return); }
    /// Clicks a control of a form that is brought to the front.
    void clic(const QString &nomForme, const QString &nom);
    /// Clicks a field, then types \p saisie in the place of what it holds.
    void remplit(const QString &nomForme, const QString &nom, const QString &saisie);

    Formulaire *forme(const QString &nom) { return formulaires().forme(nom); }
    QComboBox *liste(const QString &nomForme, const QString &nom) { return controle<QComboBox>(nomForme, nom); }
    /// A field, or the one inside a list.
    QLineEdit *champ(const QString &nomForme, const QString &nom);
    bool visible(const QString &nomForme, const QString &nom) { return controle(nomForme, nom)->isVisible(); }

    qint32 creeConcours(const ConcoursInscrit &concours = {}) { return poseConcours(base(), concours); }
    void execute(const QString &sql) { base().Execute(sql); }
    /// Runs a statement past the program's dialect, to damage the base on purpose.
    void abime(const QString &sql) { base().native().executeScript(sql); }
    /// Rows of a statement, their fields joined by "|".
    QStringList lignes(const QString &sql) { return Lignes(base().native(), sql); }
    qint64 nombre(const QString &sql) { return valeur(sql).entier(); }
};
