#pragma once

#include <QByteArrayView>
#include <QString>

#include <exception>

class QIODevice;

/// Reading of text files that other programs wrote: nothing is known of them, and nothing in them may stop, fill or
/// crash this one.
namespace recu {

/// Failure of reading such a file, told in one French sentence.
class ErreurLecture : public std::exception
{
public:
    explicit ErreurLecture(const QString &phrase)
        : m_phrase(phrase)
        , m_utf8(phrase.toUtf8())
    {
    }

    const QString &phrase() const { return m_phrase; }
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_phrase;
    QByteArray m_utf8;
};

/// Text of \p octets: of UTF-8 where they are that, of Windows-1252 otherwise. Every sequence of bytes has one.
QString DecodeTexte(QByteArrayView octets);

/// The bytes of a file one after the other, read block by block; a UTF-8 mark at the start is passed over.
class FluxOctets
{
public:
    static constexpr int fin = -1;

    explicit FluxOctets(QIODevice &source);
    Q_DISABLE_COPY_MOVE(FluxOctets)

    /// Next byte, `fin` behind the last. Throws ErreurLecture when the source fails, and on a byte 0: a file that holds
    /// one is no text.
    int lit()
    {
        const int octet = regarde();
        m_place += octet != fin;
        return octet;
    }
    /// The byte that lit() will give.
    int regarde()
    {
        if (m_place == m_bloc.size() && !remplit())
            return fin;
        return static_cast<unsigned char>(m_bloc[m_place]);
    }

    /// Bytes given so far.
    qint64 lus() const { return m_avant + m_place; }

private:
    bool remplit();

    QIODevice &m_source;
    QByteArray m_bloc;
    qsizetype m_place = 0;
    qint64 m_avant = 0; ///< Bytes of the blocks before.
    bool m_debut = true;
    bool m_fini = false;
};

/// Whether \p octet ends a line.
constexpr bool finDeLigne(int octet)
{
    return octet == '\n' || octet == '\r';
}

/// Passes over the end of a line: LF, CR LF or CR.
void PasseFinDeLigne(FluxOctets &flux);

} // namespace recu
