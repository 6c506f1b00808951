#include "commun/programme_pilote.h"

#include <QAbstractSpinBox>
#include <QRegularExpression>
#include <QSet>

// Whatever is typed, the program lives on and changes no row but those of what the operator has in hand. Each text
// comes to each screen, and each field and button sees some of them; with VARLOTOUR_ATTAQUES set, each sees all.

namespace {

/// A screen with fields: those that choose a row, and the rows that an entry may touch (\1, \2 ... stand for the
/// numbers in the choosing fields).
struct FormeVisee
{
    QString nom;
    QStringList choix; ///< Fields that say which row is meant.
    QString appel; ///< What calls a row up, typed into the last of them.
    QString permis; ///< Pattern of the rows that may change.
};

const FormeVisee ecrans[] = {
    {u"Econcours"_qs, {u"référence"_qs}, u"1"_qs, u"(concours|equipes|evolution|scores)\\|\\1\\|.*"_qs},
    {u"Eequipes"_qs, {u"référence"_qs, u"Equipe"_qs}, u"2"_qs, u"(equipes|evolution)\\|\\1\\|\\2\\|.*"_qs},
    {u"Ejoueurs"_qs, {u"Equipe"_qs}, u"1"_qs, u"equipes\\|0\\|\\1\\|.*"_qs},
    // A result may end the round, and the draw moves the competition on.
    {u"EResultats"_qs,
     {u"listconcours"_qs, u"Equipe2"_qs, u"Equipe1"_qs},
     u"3"_qs,
     u"scores\\|\\1\\|1\\|1\\|\\d+\\|\\3\\|\\2\\|.*|concours\\|\\1\\|.*"_qs},
    {u"FrmHorloge"_qs, {}, {}, {}},
    {u"I_tirage"_qs, {}, {}, {}},
    {u"Listesoc"_qs, {u"Liste_soc"_qs}, {}, u"societes\\|\\1\\|.*"_qs},
    {u"Resusoc"_qs, {}, {}, {}},
};

/// A thousand rows that no screen writes.
const QString messages = u"langues"_qs;

const QStringList textes{
    QString(10000, u'x'),
    u"\u0001\t\u0007\u001b\u007f\u0085\u2028"_qs,
    u"\u202eשלום عربي\u202c"_qs,
    u"🏆👩‍👩‍👧‍👦"_qs,
    QString(QChar(0xD800)),
    u"'"_qs,
    u"''"_qs,
    u"' or '1'='1"_qs,
    u"'; delete * from scores; '"_qs,
    u"\""_qs,
    u"%1 %2"_qs,
    u"%"_qs,
    u"_"_qs,
    u"|"_qs,
    u"*"_qs,
    u"1e9"_qs,
    u"1e999"_qs,
    u"-1e999"_qs,
    u"-0"_qs,
    u"٣"_qs,
    u"0"_qs,
    u"-1"_qs,
    u"32767"_qs,
    u"32768"_qs,
    u"2147483647"_qs,
    u"2147483648"_qs,
    u"99999999999999999999"_qs,
};

class Attaques : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(prog.demarre());
        for (int i = 0; i < 2; ++i) {
            const qint32 concours = poseConcours(prog.base(), {.equipes = equipesDeClubs(4)});
            poseRencontres(prog.base(), concours,
                           {{.tour = 1, .rencontre = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 13, .score2 = 7},
                            {.tour = 1, .rencontre = 2, .equipe1 = 3, .equipe2 = 4}});
        }
        native().executeScript(
            u"insert into equipes (concours, equipe, nom, licence, societe) values (0, 1, 'FABRE', '9', 'A'), "
            u"(0, 2, 'ROUX', '8', 'B'); insert or ignore into societes (societe, codesoc) values ('A', 1), ('B', 2);"_qs);
        native().executeScript(u"pragma synchronous = off"_qs); // thousands of writes, and no power cut among them
        gardeTout();
    }

    store::BaseNative &native() { return prog.base().native(); }

    /// Keeps the base as it stands now, to come back to.
    void gardeTout()
    {
        m_avant = Contenu(native(), messages);
        for (const QString &table : m_tables)
            native().executeScript(u"create temp table garde_%1 as select * from main.%1"_qs.arg(table));
    }
    void remetTout()
    {
        QString script = u"begin;"_qs;
        for (const QString &table : m_tables)
            script += u"delete from main.%1; insert into main.%1 select * from garde_%1;"_qs.arg(table);
        native().executeScript(script + u"commit;"_qs);
    }

    /// Rows that have gone or changed must fit \p permis.
    void verifie(const QString &permis)
    {
        if (native().changements() == m_changements)
            return;
        const QStringList apres = Contenu(native(), messages);
        const QSet<QString> restent(apres.begin(), apres.end());
        const QRegularExpression patron(QRegularExpression::anchoredPattern(permis));
        for (const QString &ligne : std::as_const(m_avant)) {
            const bool touchee = !restent.contains(ligne) && !ligne.startsWith(u"sqlite_sequence");
            EXPECT_TRUE(!touchee || (!permis.isEmpty() && patron.match(ligne).hasMatch())) << ligne.toStdString();
        }
        remetTout();
        m_changements = native().changements();
    }

    void montre(const FormeVisee &ecran)
    {
        prog.formulaires().DechargeTout();
        prog.partage().ConcoursCourant = 2;
        prog.formulaires().Montre(NomForme(ecran.nom));
        QApplication::processEvents();
    }

    Formulaire *forme(const FormeVisee &ecran) { return prog.formulaires().forme(ecran.nom); }

    QLineEdit *champ(const FormeVisee &ecran, const QString &nom)
    {
        auto *widget = forme(ecran) == nullptr ? nullptr : forme(ecran)->findChild<QWidget *>(nom);
        auto *combo = qobject_cast<QComboBox *>(widget);
        return combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit *>(widget);
    }

    /// Names of the fields that can be typed into.
    QStringList champs(const FormeVisee &ecran)
    {
        QStringList noms;
        for (QLineEdit *champ : forme(ecran)->findChildren<QLineEdit *>()) {
            auto *combo = qobject_cast<QComboBox *>(champ->parentWidget());
            if (champ->isVisible() && champ->isEnabled() && !champ->isReadOnly())
                noms += combo != nullptr ? combo->objectName() : champ->objectName();
        }
        return noms;
    }

    /// Puts the text into the field as pasted, over what it holds; not into one that does not take the keyboard.
    void colle(QLineEdit *champ, const QString &texte)
    {
        if (champ == nullptr || !champ->isVisible())
            return;
        SetFocus(champ);
        QApplication::processEvents();
        if (!champ->hasFocus())
            return;
        champ->selectAll();
        champ->insert(texte);
    }

    /// Brings up the row that the operator works on.
    void appelle(const FormeVisee &ecran)
    {
        if (forme(ecran) == nullptr || !forme(ecran)->isVisible())
            montre(ecran);
        if (ecran.choix.isEmpty())
            return;
        QLineEdit *choix = champ(ecran, ecran.choix.last());
        if (choix == nullptr)
            return;
        if (!choix->isVisible()) {
            montre(ecran);
            choix = champ(ecran, ecran.choix.last());
        }
        colle(choix, ecran.appel);
        QTest::keyClick(choix, Qt::Key_Return);
        QApplication::processEvents();
    }

    /// The rows that the numbers in the choosing fields stand for at this moment; none where one is no plain number.
    QString permis(const FormeVisee &ecran)
    {
        static const QRegularExpression nombre(u"^0*(\\d{1,9})$"_qs); // of ASCII digits
        QString patron = ecran.permis;
        for (qsizetype i = 0; i < ecran.choix.size(); ++i) {
            if (const auto *grille = forme(ecran)->findChild<FlexGrid *>(ecran.choix[i])) {
                patron.replace(u"\\1"_qs, QRegularExpression::escape(grille->Text()));
                continue;
            }
            const QLineEdit *choix = champ(ecran, ecran.choix[i]);
            const auto lu = nombre.match(choix == nullptr ? QString() : choix->text());
            if (!lu.hasMatch())
                return {};
            patron.replace(u"\\%1"_qs.arg(i + 1), QString::number(lu.captured(1).toInt()));
        }
        return patron;
    }

    void toucheEtVerifie(const FormeVisee &ecran, Qt::Key touche)
    {
        const QString patron = permis(ecran);
        if (QWidget *porteur = QApplication::focusWidget())
            QTest::keyClick(porteur, touche);
        QApplication::processEvents();
        verifie(patron);
    }

    void attaqueChamp(const FormeVisee &ecran, const QString &nom, const QString &texte)
    {
        if (passeSonTour())
            return;
        appelle(ecran);
        colle(champ(ecran, nom), texte);
        toucheEtVerifie(ecran, Qt::Key_Return);
        toucheEtVerifie(ecran, Qt::Key_Tab);
    }

    /// Every button, on a screen where \p vises hold the text.
    void attaqueBoutons(const FormeVisee &ecran, const QStringList &vises, const QString &texte)
    {
        montre(ecran);
        QStringList boutons;
        for (const QAbstractButton *bouton : forme(ecran)->findChildren<QAbstractButton *>())
            boutons += bouton->objectName();
        for (const QString &nom : std::as_const(boutons)) {
            if (nom.isEmpty() || passeSonTour())
                continue;
            appelle(ecran);
            for (const QString &vise : vises)
                colle(champ(ecran, vise), texte);
            auto *bouton = forme(ecran) == nullptr ? nullptr : forme(ecran)->findChild<QAbstractButton *>(nom);
            if (bouton == nullptr || !bouton->isVisible() || !bouton->isEnabled())
                continue;
            SCOPED_TRACE(testing::Message() << nom.toStdString() << " after " << vises.join(u", ").toStdString());
            SetFocus(bouton); // leaves the field, whose check may put its text right
            if (!bouton->isVisible())
                continue;
            const QString patron = permis(ecran);
            bouton->click();
            QApplication::processEvents();
            verifie(patron);
        }
    }

    bool passeSonTour()
    {
        constexpr int unSur = 7; // has no divisor in common with the numbers of fields and buttons
        return !m_tout && ++m_tour % unSur != 0;
    }

    const bool m_tout = qEnvironmentVariableIsSet("VARLOTOUR_ATTAQUES");
    int m_tour = 0;
    const QStringList m_tables{u"sqlite_sequence"_qs, u"concours"_qs, u"equipes"_qs, u"evolution"_qs,
                               u"scores"_qs,          u"societes"_qs, u"traduc"_qs};
    ProgrammePilote prog;
    QStringList m_avant;
    int m_changements = 0;
};

} // namespace

TEST_F(Attaques, NoTextInAnyFieldCrashesOrTouchesAnotherRow)
{
    for (const FormeVisee &ecran : ecrans) {
        montre(ecran);
        ASSERT_NE(forme(ecran), nullptr) << ecran.nom.toStdString();
        const QStringList tous = champs(ecran);
        QStringList libres;
        for (const QString &nom : tous) {
            if (!ecran.choix.contains(nom))
                libres += nom;
        }
        for (const QString &texte : textes) {
            SCOPED_TRACE(testing::Message() << ecran.nom.toStdString() << " <- " << texte.left(40).toStdString());
            prog.boites.repondATout(ReponseBoite::Oui, texte);
            for (const QString &nom : tous) {
                SCOPED_TRACE(nom.toStdString());
                attaqueChamp(ecran, nom, texte);
            }
            attaqueBoutons(ecran, libres, texte);
            for (const QString &nom : ecran.choix)
                attaqueBoutons(ecran, {nom}, texte);
            ASSERT_FALSE(HasFailure());
        }
    }
}

TEST_F(Attaques, EveryFormWithFieldsIsAttacked)
{
    prog.boites.repondATout();
    QStringList attaques;
    for (const FormeVisee &ecran : ecrans)
        attaques += ecran.nom;
    for (const QString &nom : prog.formulaires().noms()) {
        montre({nom, {}, {}, {}});
        const Formulaire *formulaire = prog.formulaires().forme(nom);
        if (formulaire == nullptr || attaques.contains(nom))
            continue;
        for (const QLineEdit *champ : formulaire->findChildren<QLineEdit *>())
            EXPECT_TRUE(champ->isReadOnly() || qobject_cast<QAbstractSpinBox *>(champ->parent()) != nullptr)
                << nom.toStdString() << ' ' << champ->objectName().toStdString();
        for (const QPlainTextEdit *champ : formulaire->findChildren<QPlainTextEdit *>())
            EXPECT_TRUE(champ->isReadOnly()) << nom.toStdString() << ' ' << champ->objectName().toStdString();
    }
}
