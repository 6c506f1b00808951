#include "commun/affiche.h"
#include "commun/base_essai.h"
#include "commun/concours_en_base.h"
#include "engine/routines_rapport.h"
#include "garde/reprise.h"
#include "garde/restauration.h"
#include "garde/sauvegarde.h"
#include "journee.h"
#include "panne_systeme.h"
#include "partage/base.h"
#include "partage/concours_courant.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <csignal>
#include <iostream>
#include <random>
#include <set>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

// A program at work is killed, or its disk fails, at any system call and at any moment: what it had acknowledged is
// there, what it was about is there whole or not at all. VARLOTOUR_COUPURES gives the seconds of the run,
// VARLOTOUR_GRAINE its first seed.

using panne::Genre;

namespace {

constexpr int toutVaBien = 0;
constexpr int tuerEnRoute = -1;

/// What befalls one run of the program.
struct Sort
{
    Genre genre = Genre::Aucune;
    int apres = 0;
    int duree = 0;
    bool desLOuverture = false;
    int delaiUs = tuerEnRoute; ///< Above it: killed from outside when so much time has gone by.
    qint64 limite = 0; ///< Above 0: no file may grow beyond it.
};

QString reglage(const char *nom, const QString &sinon)
{
    return qEnvironmentVariable(nom, sinon);
}

/// The program: goes on with the day where \p debut acknowledged operations have brought it, and tells down a pipe.
class Enfant
{
public:
    Enfant(const QString &dossier, quint32 graine, const std::vector<QStringList> &etats, int tube)
        : m_journee(dossier, graine)
        , m_etats(etats)
        , m_tube(tube)
    {
    }

    void travaille(int debut, const Sort &sort)
    {
        if (sort.desLOuverture)
            provoque(sort);
        essaie(0, [this] { m_journee.ouvre(); });
        const QString integrite = m_journee.integrite();
        if (integrite != u"ok")
            accuse(u"integrity: "_qs + integrite);
        int operation = reprend(debut);
        dit(u"A%1\n"_qs.arg(operation));
        if (!sort.desLOuverture)
            provoque(sort);
        for (; operation < m_journee.operations(); ++operation) {
            m_echecs = 0;
            essaie(operation, [&] { m_journee.fait(operation); });
            dit(u"A%1\n"_qs.arg(operation + 1));
        }
        m_journee.ferme();
        dit(u"F\n"_qs);
    }

private:
    static void provoque(const Sort &sort)
    {
        panne::arme(sort.genre, sort.apres, sort.duree);
        fixeLimite(sort.limite);
    }

    static void fixeLimite(qint64 limite)
    {
        rlimit taille{};
        getrlimit(RLIMIT_FSIZE, &taille);
        taille.rlim_cur = limite > 0 ? rlim_t(limite) : taille.rlim_max;
        setrlimit(RLIMIT_FSIZE, &taille);
    }

    /// What the file holds must be the last acknowledged state or the one that follows.
    int reprend(int debut)
    {
        const QStringList trouve = m_journee.contenu();
        for (const int operation : {debut + 1, debut}) {
            if (operation < int(m_etats.size()) && trouve == m_etats[std::size_t(operation)])
                return operation;
        }
        QStringList fautes{u"after %1 operations"_qs.arg(debut)};
        for (const int operation : {debut, debut + 1})
            fautes += premiereDifference(trouve, m_etats[std::size_t(std::min(operation, m_journee.operations()))]);
        accuse(fautes.join(u"; "_qs));
    }

    static QString premiereDifference(const QStringList &trouve, const QStringList &attendu)
    {
        qsizetype i = 0;
        while (i < trouve.size() && i < attendu.size() && trouve[i] == attendu[i])
            ++i;
        return u"expected '%1' found '%2'"_qs.arg(attendu.value(i), trouve.value(i));
    }

    /// The operator tries again until the disk has room; a failure must have left everything as it was.
    template<typename Action>
    void essaie(int operation, const Action &action)
    {
        constexpr int patience = 60;
        constexpr int echecsAvantPlace = 3;
        for (;;) {
            try {
                return action();
            } catch (const store::Erreur &erreur) {
                dit(u"P\n"_qs);
                if (++m_echecs == echecsAvantPlace)
                    fixeLimite(0);
                if (m_echecs > patience)
                    accuse(u"operation %1 never succeeds: %2"_qs.arg(operation).arg(erreur.phrase()));
                if (m_journee.remplaceLaBase(operation))
                    termine(); // whoever starts next looks at what it left
                verifieSansEffet(operation);
            }
        }
    }

    void verifieSansEffet(int operation)
    {
        try {
            if (m_journee.estOuverte() && m_journee.contenu() != m_etats[std::size_t(operation)])
                accuse(u"the failed operation %1 has left something"_qs.arg(operation));
        } catch (const store::Erreur &) {
            // The disk does not let itself be read either.
        }
    }

    void dit(const QString &ligne) const
    {
        const QByteArray octets = ligne.toUtf8();
        syscall(SYS_write, m_tube, octets.constData(), size_t(octets.size()));
    }
    [[noreturn]] void accuse(const QString &faute) const
    {
        dit(u"E"_qs + faute + u'\n');
        termine();
    }
    [[noreturn]] static void termine() { _exit(toutVaBien); }

    Journee m_journee;
    const std::vector<QStringList> &m_etats;
    int m_tube;
    int m_echecs = 0;
};

class Coupures : public testing::Test
{
protected:
    /// The states of an undisturbed day.
    static std::vector<QStringList> etatsSansPanne(quint32 graine)
    {
        const BaseEssai base;
        Journee journee(base.dossier(), graine);
        journee.ouvre();
        std::vector<QStringList> etats{journee.contenu()};
        for (int i = 0; i < journee.operations(); ++i) {
            journee.fait(i);
            etats.push_back(journee.contenu());
        }
        return etats;
    }

    Sort tireSort()
    {
        const auto entre = [this](int bas, int haut) { return std::uniform_int_distribution(bas, haut)(m_alea); };
        // An operation that is cut again and again gets more and more time.
        const int repit = 1 + m_surPlace;
        Sort sort{.apres = entre(0, 60 * repit), .duree = entre(1, 8), .desLOuverture = entre(0, 5) == 0};
        switch (entre(0, 9)) {
        case 0:
            sort.limite = entre(1, 160) * 1024;
            break;
        case 1:
            sort.genre = Genre::Plein;
            break;
        case 2:
            sort.genre = Genre::Refus;
            break;
        case 3:
            break;
        case 4:
            sort.genre = Genre::Dechirure;
            break;
        default:
            sort.genre = Genre::Mort;
        }
        // A disk that only fails for a while does not end the run.
        if (sort.genre != Genre::Mort && sort.genre != Genre::Dechirure)
            sort.delaiUs = entre(0, 20000 * repit);
        return sort;
    }

    /// Runs the program until it ends or dies; false when it has found something wrong.
    bool lance(const QString &dossier, quint32 graine, const std::vector<QStringList> &etats, const Sort &sort)
    {
        int tube[2];
        if (pipe(tube) != 0)
            return false;
        const pid_t enfant = fork();
        if (enfant == 0) {
            close(tube[0]);
            std::signal(SIGXFSZ, SIG_IGN);
            Enfant(dossier, graine, etats, tube[1]).travaille(m_faites, sort);
            _exit(toutVaBien);
        }
        close(tube[1]);
        QByteArray dit(sort.desLOuverture ? 0 : 4096, '\0');
        dit.truncate(qsizetype(std::max<ssize_t>(0, ::read(tube[0], dit.data(), size_t(dit.size()))))); // it is open
        if (sort.delaiUs > tuerEnRoute) {
            usleep(useconds_t(sort.delaiUs));
            kill(enfant, SIGKILL);
        }
        QFile lecture;
        lecture.open(tube[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
        dit += lecture.readAll();
        const int avant = m_faites;
        int fin = 0;
        waitpid(enfant, &fin, 0);
        if (WIFSIGNALED(fin))
            ++(WTERMSIG(fin) == SIGKILL ? m_tuees : m_plantees);
        const bool juste = ecoute(dit);
        m_surPlace = m_faites > avant ? 0 : m_surPlace + 1;
        return juste;
    }

    bool ecoute(const QByteArray &dit)
    {
        for (const QByteArray &ligne : dit.split('\n')) {
            if (ligne.startsWith('E')) {
                ADD_FAILURE() << ligne.mid(1).toStdString();
                return false;
            }
            if (ligne.startsWith('A'))
                m_faites = ligne.mid(1).toInt();
            m_refus += ligne == "P";
            m_finie = m_finie || ligne == "F";
        }
        return true;
    }

    /// Size and first bytes of a file.
    static std::string debut(const QString &chemin)
    {
        QFile fichier(chemin);
        fichier.open(QIODevice::ReadOnly);
        return u"%1 bytes: "_qs.arg(fichier.size()).toStdString() + fichier.read(16).toHex().toStdString();
    }

    /// Every copy that bears its name is one of the states of the day.
    static void verifieCopies(const QString &dossier, const std::vector<QStringList> &etats)
    {
        const QDir copies(dossier + u"/sauvegardes"_qs);
        const QStringList noms = copies.entryList({u"*.mdb"_qs}, QDir::Files);
        EXPECT_LE(noms.size(), 20);
        for (const QString &nom : noms) {
            try {
                store::BaseNative copie(copies.filePath(nom), motDePasseBase, store::BaseNative::Mode::LectureSeule);
                EXPECT_EQ(copie.valeurUnique(u"pragma integrity_check"_qs).texte(), u"ok"_qs);
                EXPECT_NE(std::find(etats.begin(), etats.end(), Contenu(copie)), etats.end()) << nom.toStdString();
            } catch (const store::Erreur &erreur) {
                ADD_FAILURE() << erreur.phrase().toStdString() << " (" << debut(copies.filePath(nom)) << ')';
            }
        }
    }

    std::mt19937 m_alea;
    int m_faites = 0;
    int m_surPlace = 0; ///< Runs that have acknowledged nothing new.
    bool m_finie = false;
    int m_tuees = 0;
    int m_plantees = 0;
    int m_refus = 0;
};

} // namespace

TEST_F(Coupures, WhateverHappensAnAcknowledgedEntryIsThereAndNothingIsHalfWritten)
{
    constexpr int departsAuPlus = 400;
    const QTemporaryDir provisoires; // what killed programs leave where they proved their base
    qputenv("TMPDIR", provisoires.path().toUtf8());
    const int secondes = reglage("VARLOTOUR_COUPURES", u"4"_qs).toInt();
    QElapsedTimer duree;
    duree.start();
    int departs = 0;
    quint32 graine = reglage("VARLOTOUR_GRAINE", u"1"_qs).toUInt();
    for (; !duree.hasExpired(secondes * 1000) && !HasFailure(); ++graine) {
        SCOPED_TRACE(testing::Message() << "VARLOTOUR_GRAINE=" << graine);
        const std::vector<QStringList> etats = etatsSansPanne(graine);
        const BaseEssai base;
        m_alea.seed(graine);
        m_faites = 0;
        m_finie = false;
        for (int depart = 0; !m_finie; ++depart, ++departs) {
            ASSERT_LT(depart, departsAuPlus);
            ASSERT_TRUE(lance(base.dossier(), graine, etats, tireSort()));
            ASSERT_EQ(m_plantees, 0);
        }
        verifieCopies(base.dossier(), etats);
    }
    std::cout << departs << " runs, " << m_tuees << " killed, " << m_refus << " failed operations\n";
    EXPECT_GT(m_tuees, 0);
}

/// An entry is acknowledged when the disk has it: a power cut takes what has only been handed to the system.
TEST_F(Coupures, EachEntryAndEachNameIsSynchronisedBeforeItIsAcknowledged)
{
    const BaseEssai base;
    AleaFixe alea{1};
    Horloge horloge;
    Partage partage(base.dossier(), alea, horloge);
    partage.BaseDonnees = base.ouvre();
    store::Recordset lignes = partage.BaseDonnees.OpenRecordset(u"scores", store::dbOpenTable);
    const QString journal = u"sync VarloBase.mdb-wal"_qs;
    for (int i = 0; i < 5; ++i) {
        panne::note();
        partage.BaseDonnees.Execute(u"insert into scores (concours, tour) values (1, 1)");
        EXPECT_TRUE(panne::notes().endsWith(journal));
        panne::note();
        lignes.MoveFirst();
        lignes.Edit();
        lignes[u"score_1"] = i;
        lignes.Update();
        EXPECT_TRUE(panne::notes().endsWith(journal));
        panne::note();
        partage.BaseDonnees.EcritEnGroupe([&] {
            for (int fois = 0; fois < 3; ++fois)
                partage.BaseDonnees.Execute(u"insert into scores (concours, tour) values (2, 1)");
        });
        EXPECT_TRUE(panne::notes().endsWith(journal));
    }
    panne::note();
    ASSERT_FALSE(SauveBase(partage, RaisonCopie::Demande).echouee());
    QStringList appels = panne::notes().filter(QRegularExpression(u"^(sync sauvegardes|renomme .*mdb)$"_qs));
    EXPECT_EQ(appels.mid(appels.size() - 2).join(u' ').section(u' ', -2), u"sync sauvegardes"_qs)
        << "the name of a copy";
    partage.BaseDonnees.Close();
    panne::note();
    std::ignore = RemetCopie(partage, CopiesSaines(base.dossier()).front().copie.fichier);
    appels = panne::notes();
    EXPECT_EQ(appels.last(), u"sync "_qs + QDir(base.dossier()).dirName()) << "the base's new name";
    EXPECT_EQ(appels.value(appels.size() - 2), u"renomme VarloBase.mdb"_qs);
    panne::note();
    ASSERT_TRUE(QFile::rename(base.fichier(), base.dossier() + u"/myTmpDB.mdb"_qs));
    ASSERT_TRUE(ReprendPurge(base.dossier()));
    EXPECT_EQ(panne::notes().last(), appels.last()) << "a purge taken up";
}

TEST_F(Coupures, ADiskThatRefusesAnyCallOfACopyLeavesNoPartOfItUnderItsName)
{
    const BaseEssai base;
    AleaFixe alea{1};
    Horloge horloge;
    Partage partage(base.dossier(), alea, horloge);
    partage.BaseDonnees = base.ouvre();
    std::vector<QStringList> etats;
    for (const auto &[genre, duree] : {std::pair{Genre::Refus, 1}, {Genre::Refus, 8}, {Genre::Plein, 1000}}) {
        bool frappe = true;
        for (int apres = 0; frappe; ++apres) {
            partage.BaseDonnees.Execute(u"insert into scores (concours, tour) values (1, 1)"_qs);
            etats.push_back(Contenu(partage.BaseDonnees.native()));
            panne::arme(genre, apres, duree);
            std::ignore = SauveBase(partage, RaisonCopie::Demande);
            frappe = panne::desarme();
            verifieCopies(base.dossier(), etats);
            ASSERT_FALSE(HasFailure()) << "call " << apres << " failed, and " << duree - 1 << " more";
        }
    }
    EXPECT_GT(etats.size(), 60U);
}

/// Killed, torn or refused at any call, a restoration leaves the old base or the new one, and the base of before in a
/// copy.
TEST_F(Coupures, ARestorationCutAtAnyCallLeavesOneOfTheTwoBasesWhole)
{
    const BaseEssai base;
    AleaFixe alea{1};
    Horloge horloge;
    QStringList ancienne;
    QStringList nouvelle;
    const auto restaure = [&](Partage &partage) {
        const std::vector<Copie> copies = ListeCopies(base.dossier());
        PrepareRestauration(partage, copies.front().fichier);
        if (SauveBase(partage, RaisonCopie::Restauration).echouee())
            throw store::Erreur(store::Erreur::DisquePlein, u"copy"_qs);
        Restaure(partage, FichiersBase());
    };
    const auto ouvre = [&](Partage &partage) {
        partage.EspaceTravail = &partage.moteurBase.Workspaces(0);
        AbandonneRestauration(base.dossier());
        partage.BaseDonnees = base.ouvre();
    };
    {
        Partage partage(base.dossier(), alea, horloge);
        ouvre(partage);
        partage.BaseDonnees.Execute(u"insert into societes (societe) values ('ANCIENNE')");
        ancienne = Contenu(partage.BaseDonnees.native());
        ASSERT_FALSE(SauveBase(partage, RaisonCopie::Demande).echouee());
    }
    int anciennes = 0;
    int nouvelles = 0;
    for (const Genre genre : {Genre::Mort, Genre::Dechirure, Genre::Refus, Genre::Plein}) {
        int fin = 1;
        for (int apres = 0; fin != toutVaBien; ++apres) {
            {
                Partage partage(base.dossier(), alea, horloge);
                ouvre(partage);
                partage.BaseDonnees.Execute(u"delete * from societes where societe='NOUVELLE'");
                partage.BaseDonnees.Execute(u"insert into societes (societe) values ('NOUVELLE')");
                nouvelle = Contenu(partage.BaseDonnees.native());
            }
            const pid_t enfant = fork();
            if (enfant == 0) {
                Partage partage(base.dossier(), alea, horloge);
                ouvre(partage);
                panne::arme(genre, apres, genre == Genre::Plein ? 1000 : 1);
                try {
                    restaure(partage);
                } catch (const store::Erreur &) {
                    panne::desarme();
                    _exit(partage.BaseDonnees.estOuverte() ? 2 : 3);
                }
                _exit(panne::desarme() ? 2 : toutVaBien);
            }
            int statut = 0;
            waitpid(enfant, &statut, 0);
            fin = WIFEXITED(statut) ? WEXITSTATUS(statut) : 1;
            SCOPED_TRACE(testing::Message() << "kind " << int(genre) << ", call " << apres);
            ASSERT_LT(apres, 2000);
            Partage partage(base.dossier(), alea, horloge);
            ouvre(partage);
            EXPECT_EQ(partage.BaseDonnees.native().valeurUnique(u"pragma integrity_check"_qs).texte(), u"ok"_qs);
            const QStringList trouve = Contenu(partage.BaseDonnees.native());
            anciennes += trouve == nouvelle;
            nouvelles += trouve == ancienne;
            ASSERT_TRUE(trouve == nouvelle || trouve == ancienne);
            verifieCopies(base.dossier(), {ancienne, nouvelle});
            ASSERT_FALSE(HasFailure());
        }
        EXPECT_EQ(fin, toutVaBien);
    }
    EXPECT_GT(anciennes, 40);
    EXPECT_GT(nouvelles, 4);
}

/// Killed, torn or refused at any call, a round that is drawn anew is the old one or the new one.
TEST_F(Coupures, ARoundDrawnAnewAndCutAtAnyCallIsTheOldOneOrTheNewOne)
{
    const BaseEssai base;
    AleaFixe alea{1};
    Horloge horloge;
    std::vector<moteur::EquipeInscrite> equipes;
    std::vector<moteur::Partie> parties;
    for (int equipe = 1; equipe <= 16; ++equipe) {
        equipes.push_back({equipe, u"Club %1"_qs.arg(equipe % 5)});
        if (equipe % 2 == 0) {
            parties.push_back({.tour = 1,
                               .rencontre = equipe / 2,
                               .equipe1 = equipe - 1,
                               .equipe2 = equipe,
                               .score1 = 13,
                               .score2 = equipe % 12});
            parties.push_back({.tour = 2, .equipe1 = equipe - 1, .equipe2 = equipe});
        }
    }
    const auto ouvre = [&](Partage &partage) {
        partage.EspaceTravail = &partage.moteurBase.Workspaces(0);
        partage.BaseDonnees = base.ouvre();
        partage.ConcoursCourant = 1;
        ChargeConcours(partage, partage.ConcoursCourant);
    };
    QStringList ancien;
    QStringList nouveau;
    std::vector<moteur::Partie> propose;
    {
        store::Database ouverte = base.ouvre();
        ASSERT_EQ(poseConcours(ouverte, {.equipes = equipes}), 1);
        poseRencontres(ouverte, 1, parties);
    }
    std::erase_if(parties, [](const moteur::Partie &partie) { return partie.tour == 1; });
    {
        Partage partage(base.dossier(), alea, horloge);
        ouvre(partage);
        propose = ProposeTour(partage, 2).parties;
        RemplaceTour(partage, propose);
        nouveau = Contenu(partage.BaseDonnees.native());
    }
    std::set<QStringList> trouves;
    for (const Genre genre : {Genre::Mort, Genre::Dechirure, Genre::Refus, Genre::Plein}) {
        int fin = 1;
        for (int apres = 0; fin != toutVaBien; ++apres) {
            {
                Partage partage(base.dossier(), alea, horloge);
                ouvre(partage);
                RemplaceTour(partage, parties);
                ancien = Contenu(partage.BaseDonnees.native());
                ASSERT_NE(ancien, nouveau);
            }
            const pid_t enfant = fork();
            if (enfant == 0) {
                Partage partage(base.dossier(), alea, horloge);
                ouvre(partage);
                panne::arme(genre, apres, genre == Genre::Plein ? 1000 : 1);
                try {
                    RemplaceTour(partage, propose);
                } catch (const store::Erreur &) {
                    panne::desarme();
                    _exit(2);
                }
                _exit(panne::desarme() ? 2 : toutVaBien);
            }
            int statut = 0;
            waitpid(enfant, &statut, 0);
            fin = WIFEXITED(statut) ? WEXITSTATUS(statut) : 1;
            SCOPED_TRACE(testing::Message() << "kind " << int(genre) << ", call " << apres);
            ASSERT_LT(apres, 500);
            Partage partage(base.dossier(), alea, horloge);
            ouvre(partage);
            const QStringList trouve = Contenu(partage.BaseDonnees.native());
            ASSERT_TRUE(trouve == ancien || trouve == nouveau);
            trouves.insert(trouve);
        }
        EXPECT_EQ(fin, toutVaBien);
    }
    EXPECT_EQ(trouves.size(), 2U);
}
