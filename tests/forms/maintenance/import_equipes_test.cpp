#include "inscription_essai.h"

#include <QKeyEvent>
#include <QMessageBox>

namespace {

const QString questionPanachees = u"Les équipes panachées sont-elles autorisées"_qs;
const QString triplettes = u"2 - Triplettes"_qs;
const QString teteATete = u"3 - Tête à tête"_qs;

/// Team files, imported by the button of the registration.
class ImportEquipes : public Inscription
{
protected:
    QString ecrit(const QByteArray &octets)
    {
        const QString chemin = dossier() + u"/equipes.dat"_qs;
        ecritFichier(chemin, octets);
        return chemin;
    }
    /// The operator chooses the file and accepts the import; the boxes behind that are the test's.
    void choisit(const QString &fichier, ReponseBoite reponse = ReponseBoite::Oui)
    {
        boites.attendFichier(partage().mes(22) + u" - "_qs + partage().mes(2), fichier);
        boites.attend(partage().mes(100), reponse);
    }
    void confirme(ReponseBoite reponse = ReponseBoite::Oui) { boites.attend(partage().mes(101), reponse); }
    void lance()
    {
        clic(E, u"cImport"_qs);
        boites.verifie();
    }
    /// The player is known, and his club too.
    void connu(const QString &licence, const QString &nom, const QString &societe)
    {
        joueur(licence, nom, u"Camille"_qs, societe);
        if (nombre(u"select count(*) from societes where societe = '%1'"_qs.arg(societe)) == 0)
            club(societe);
    }
};

TEST_F(ImportEquipes, TheExampleFileGivesThreeTeams)
{
    const qint32 concours = ouvre(triplettes);
    choisit(QStringLiteral(VARLOTOUR_EXEMPLES "/equipes.dat"), ReponseBoite::Non); // No is as good as Yes.
    boites.attend(questionPanachees, ReponseBoite::Oui); // unknown licences, whatever club the file names
    for (int equipe = 1; equipe <= 3; ++equipe)
        confirme();
    lance();
    EXPECT_EQ(numeros(concours), QStringList({u"1"_qs, u"2"_qs, u"3"_qs}));
    EXPECT_EQ(equipe(concours, 2),
              QStringList({u"0|MARTIN|Hélène|08310011|*Panachée|A|1"_qs, u"1|LE GOFF|Loïc|08310012|*Panachée|A|1"_qs,
                           u"2|VIDAL|Noël|08310013|*Panachée|A|1"_qs}));
}

TEST_F(ImportEquipes, TheStoreGoesBeforeTheFileAndHiddenMembersAreLeftOut)
{
    connu(u"01"_qs, u"FABRE"_qs, u"DUP"_qs);
    connu(u"02"_qs, u"ROUX"_qs, u"DUP"_qs);
    const qint32 concours = ouvre();
    choisit(ecrit("Autre|X| Rémi |01|Y|Z| 02 |TROISIEME|T|03\n"));
    confirme();
    lance();
    EXPECT_EQ(equipe(concours, 1), QStringList({u"0|FABRE|Camille|01|DUP|A|1"_qs, u"1|ROUX|Camille|02|DUP|A|1"_qs}));
}

TEST_F(ImportEquipes, BlanksAndTheLastBar)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre(teteATete);
    // Windows-1252, no licence: what stands in the file is taken over.
    choisit(ecrit(" DUP | NO\xCBL | Zo\xE9 | \r\nDUP|ROUX|L\xE9o||\r\n  \r\n"));
    confirme();
    confirme();
    lance();
    EXPECT_EQ(equipe(concours, 1), QStringList({u"0|NOËL| Zoé ||DUP|A|1"_qs}));
    EXPECT_EQ(equipe(concours, 2), QStringList({u"0|ROUX|Léo||DUP|A|1"_qs}));
}

TEST_F(ImportEquipes, RefusalsLeaveTheFieldsAndTheNextLineGoesOn)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre(teteATete);
    choisit(ecrit("DUP|REFUSE|A||\n|SANS CLUB|B||\nNouveau|ROUX|C||\nInconnu|NOIR|D||\n"));
    confirme(ReponseBoite::Non);
    confirme();
    boites.attend(u"Le nom du club est obligatoire"_qs);
    boites.attend(partage().mes(92), ReponseBoite::Oui);
    confirme();
    boites.attend(partage().mes(92), ReponseBoite::Non); // clears the club
    confirme(ReponseBoite::Non);
    lance();
    EXPECT_EQ(equipe(concours, 1), QStringList({u"0|ROUX|C||Nouveau|A|1"_qs}));
    EXPECT_EQ(numeros(concours).size(), 1);
    EXPECT_EQ(textes(E, u"NomJ_0 Société"_qs), u"NOIR|"_qs);
}

TEST_F(ImportEquipes, AShortLineStopsTheImport)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre();
    choisit(ecrit("DUP|A|B||C|D||\nDUP|SEUL|E||F\nDUP|G|H||I|J||\n"));
    confirme();
    boites.attend(u"L'importation de equipes.dat s'arrête à la ligne 2. La ligne est incomplète : il y manque le "
                  u"prénom du joueur 2. Avant elle : 1 équipe entrée."_qs);
    lance();
    EXPECT_EQ(texte(E, u"Avancement"_qs), u"Importation, ligne 2 (65 %) : 1 équipe enregistrée. Arrêtée."_qs);
    EXPECT_EQ(numeros(concours).size(), 1);
    EXPECT_EQ(textes(E, u"NomJ_0 NomJ_1"_qs), u"SEUL|F"_qs);

    const auto arretee = [&](const QByteArray &octets, const QString &phrase) {
        choisit(ecrit(octets));
        boites.attend(phrase);
        lance();
    };
    arretee("\nDUP|A|B||C|D||\n",
            u"à la ligne 1. La ligne est incomplète : il y manque le nom du joueur 1. Avant elle : "
            "aucune équipe entrée."_qs);
    arretee(QByteArray("\x7F"
                       "ELF\0\0|||",
                       9),
            u"Le fichier n'est pas un fichier de texte."_qs);
    arretee(QByteArray(100'000, '|'), u"La ligne est trop longue"_qs);
    EXPECT_EQ(numeros(concours).size(), 1);
}

/// Does something once, when a box comes up that says \p partie.
class AuVuDe : public QObject
{
public:
    AuVuDe(const QString &partie, std::function<void()> suite)
        : m_partie(partie)
        , m_suite(std::move(suite))
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        const auto *boite = qobject_cast<QMessageBox *>(objet);
        if (evenement->type() == QEvent::Show && boite != nullptr && boite->text().contains(m_partie) && m_suite)
            std::exchange(m_suite, nullptr)();
        return false;
    }

private:
    QString m_partie;
    std::function<void()> m_suite;
};

TEST_F(ImportEquipes, EscapeHeldForASecondEndsItBehindTheBoxOnScreen)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre(teteATete);
    const QByteArray fichier = "DUP|A|A||\nDUP|B|B||\nNouveau|C|C||\nDUP|D|D||\n";
    quint64 instant = 5000;
    const auto echap = [&](QEvent::Type type, bool tenue, quint64 apres) {
        QKeyEvent touche(type, Qt::Key_Escape, Qt::NoModifier, {}, tenue);
        touche.setTimestamp(instant += apres);
        QApplication::sendEvent(forme(E), &touche);
    };
    const auto importe = [&](const QString &partie, std::function<void()> touches) {
        const AuVuDe vue(partie, std::move(touches));
        lance();
    };

    // Pressed twice, or not long enough, it is the key that answers a box.
    choisit(ecrit(fichier));
    confirme();
    confirme(ReponseBoite::Non);
    boites.attend(partage().mes(92), ReponseBoite::Non);
    confirme(ReponseBoite::Non);
    confirme();
    importe(partage().mes(101), [&] {
        echap(QEvent::KeyPress, false, 0);
        echap(QEvent::KeyPress, true, 900);
        echap(QEvent::KeyRelease, false, 50);
        echap(QEvent::KeyPress, false, 500);
        echap(QEvent::KeyRelease, false, 50);
    });
    EXPECT_EQ(numeros(concours).size(), 2);
    EXPECT_EQ(texte(E, u"Avancement"_qs), u"Importation, ligne 4 (100 %) : 2 équipes enregistrées. Terminée."_qs);

    // Held: the answer to this box still counts, and no other box comes.
    choisit(ecrit(fichier));
    confirme();
    importe(partage().mes(101), [&] {
        EXPECT_TRUE(texte(E, u"Avancement"_qs).startsWith(u"Importation, ligne 1 (2"_qs));
        echap(QEvent::KeyPress, false, 0);
        for (int fois = 0; fois < 20; ++fois)
            echap(QEvent::KeyPress, true, 60);
        EXPECT_TRUE(texte(E, u"Avancement"_qs).contains(u"s'arrête après cette question"_qs));
    });
    EXPECT_EQ(numeros(concours).size(), 3);
    EXPECT_TRUE(texte(E, u"Avancement"_qs).endsWith(u"1 équipe enregistrée. Arrêtée."_qs));

    choisit(ecrit(fichier));
    confirme();
    confirme();
    boites.attend(partage().mes(92), ReponseBoite::Oui);
    importe(partage().mes(92), [&] {
        echap(QEvent::KeyPress, false, 0);
        echap(QEvent::KeyRelease, false, 1000);
    });
    EXPECT_EQ(numeros(concours).size(), 5);
    EXPECT_EQ(texte(E, u"NomJ_0"_qs), u"C"_qs);
}

TEST_F(ImportEquipes, NothingToImport)
{
    const qint32 concours = ouvre();
    const QString titre = partage().mes(22) + u" - "_qs + partage().mes(2);
    for (const std::optional<QString> &choix :
         {std::optional<QString>(), std::optional(QString()), std::optional(dossier() + u"/absent.dat"_qs),
          std::optional(dossier())}) {
        boites.attendFichier(titre, choix);
        lance();
    }
    choisit(ecrit("DUP|A|B||C|D||\n"), ReponseBoite::Annuler);
    lance();
    for (const char *rien : {"", "\n", " \r\n\t\n"}) {
        choisit(ecrit(rien));
        lance();
    }
    EXPECT_EQ(numeros(concours), QStringList());
}

} // namespace
