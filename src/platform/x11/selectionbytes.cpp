// SPDX-License-Identifier: MIT
#include "platform/x11/selectionbytes.h"

#include <QStringDecoder>

#include <cstring>

namespace vesk::selectionbytes {

QString text(const QByteArray &bytes, Encoding encoding)
{
    if (encoding == Encoding::Latin1)
        return QString::fromLatin1(bytes);
    using Flag = QStringConverter::Flag;
    QStringDecoder decoder(QStringConverter::Utf8, Flag::ConvertInitialBom | Flag::Stateless);
    return decoder(bytes);
}

QList<xcb_atom_t> atoms(const QByteArray &bytes)
{
    QList<xcb_atom_t> atoms(bytes.size() / qsizetype{sizeof(xcb_atom_t)});
    if (!atoms.isEmpty())
        std::memcpy(atoms.data(), bytes.constData(), static_cast<size_t>(atoms.size()) * sizeof(xcb_atom_t));
    return atoms;
}

} // namespace vesk::selectionbytes
