#include "panne_systeme.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

panne::Genre genreArme = panne::Genre::Aucune;
int reste = 0;
int aEchouer = 0;
bool aFrappe = false;

QStringList appels;
bool noteAppels = false;

void retiens(const QString &appel, const QString &chemin)
{
    if (std::exchange(noteAppels, false)) { // what is asked here is no call of the program
        appels += appel + u' ' + QFileInfo(chemin).fileName();
        noteAppels = true;
    }
}

void retiensSync(int fd)
{
    if (noteAppels)
        retiens(u"sync"_qs, QFile::symLinkTarget(u"/proc/self/fd/%1"_qs.arg(fd)));
}

bool mortelle()
{
    return genreArme == panne::Genre::Mort || genreArme == panne::Genre::Dechirure;
}

/// Counts a call; whether it fails, with errno set.
bool echoue(bool ecriture)
{
    if (genreArme == panne::Genre::Aucune || (genreArme == panne::Genre::Plein && !ecriture) || reste-- > 0)
        return false;
    if (mortelle())
        kill(getpid(), SIGKILL);
    if (aEchouer-- <= 0) {
        genreArme = panne::Genre::Aucune;
        return false;
    }
    aFrappe = true;
    errno = genreArme == panne::Genre::Plein ? ENOSPC : EIO;
    return true;
}

/// Pipes and events of the process itself are no files.
bool estUnFichier(int fd)
{
    struct stat infos
    {
    };
    return fstat(fd, &infos) == 0 && S_ISREG(infos.st_mode);
}

template<typename Appel>
ssize_t ecrit(int fd, size_t taille, const Appel &appel)
{
    if (genreArme == panne::Genre::Aucune || !estUnFichier(fd))
        return appel(taille);
    if (genreArme == panne::Genre::Dechirure && reste == 0)
        appel(taille / 2);
    return echoue(true) ? -1 : appel(taille);
}

} // namespace

void panne::arme(Genre genre, int apres, int duree)
{
    genreArme = genre;
    reste = apres;
    aEchouer = duree;
    aFrappe = false;
}

void panne::note()
{
    appels.clear();
    noteAppels = true;
}

QStringList panne::notes()
{
    noteAppels = false;
    return appels;
}

bool panne::desarme()
{
    genreArme = Genre::Aucune;
    return aFrappe;
}

extern "C" {

ssize_t write(int fd, const void *octets, size_t taille)
{
    return ecrit(fd, taille, [&](size_t n) { return syscall(SYS_write, fd, octets, n); });
}

ssize_t pwrite64(int fd, const void *octets, size_t taille, off64_t place)
{
    return ecrit(fd, taille, [&](size_t n) { return syscall(SYS_pwrite64, fd, octets, n, place); });
}

int fsync(int fd)
{
    retiensSync(fd);
    return echoue(false) ? -1 : int(syscall(SYS_fsync, fd));
}

int fdatasync(int fd)
{
    retiensSync(fd);
    return echoue(false) ? -1 : int(syscall(SYS_fdatasync, fd));
}

int ftruncate64(int fd, off64_t taille) noexcept
{
    return echoue(false) ? -1 : int(syscall(SYS_ftruncate, fd, taille));
}

int unlink(const char *nom) noexcept
{
    return echoue(false) ? -1 : int(syscall(SYS_unlink, nom));
}

int renameat2(int ancien, const char *de, int nouveau, const char *vers, unsigned drapeaux) noexcept
{
    return echoue(false) ? -1 : int(syscall(SYS_renameat2, ancien, de, nouveau, vers, drapeaux));
}

int rename(const char *de, const char *vers) noexcept
{
    retiens(u"renomme"_qs, QString::fromUtf8(vers));
    return echoue(false) ? -1 : int(syscall(SYS_rename, de, vers));
}
}
