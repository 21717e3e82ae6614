// SPDX-License-Identifier: MIT
#include "components/commandkeys.h"

#include "components/keylabels.h"
#include "input/globalkeys.h"
#include "input/keynames.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

using State = GlobalKeys::State;

/// The engine property that holds the keys.
constexpr const char *kProperty = "veskGlobalKeys";

} // namespace

CommandKeys::CommandKeys(const GlobalKeys *keys, QObject *parent)
    : QObject(parent)
    , m_keys(keys)
{
    if (keys)
        connect(keys, &GlobalKeys::changed, this, &CommandKeys::changed);
}

CommandKeys *CommandKeys::create(QQmlEngine *engine, QJSEngine * /*scriptEngine*/)
{
    return new CommandKeys(qvariant_cast<const GlobalKeys *>(engine->property(kProperty)), engine);
}

QStringList CommandKeys::glyphs(Command command) const
{
    if (!m_keys)
        return keynames::glyphs(combinationOf(command), nullptr);
    const std::optional<KeyCombination> combination = m_keys->key(command).combination;
    return combination ? keynames::glyphs(*combination, &m_keys->keyboard()) : QStringList();
}

QString CommandKeys::spelt(Command command) const
{
    QStringList labels = glyphs(command);
    for (QString &label : labels)
        label = KeyLabels::label(label, KeyLabels::Global);
    return labels.join(u'+');
}

bool CommandKeys::isTaken(Command command) const
{
    return m_keys && m_keys->key(command).state == State::Taken;
}

QString CommandKeys::holders() const
{
    QString all;
    for (const QString &name : m_keys ? m_keys->holders() : QStringList())
        all = all.isEmpty() ? name : tr("%1 or %2").arg(all, name);
    return all.isEmpty() ? tr("another program") : all;
}

QString CommandKeys::notice(Command command) const
{
    if (isTaken(command) && m_keys->holders().isEmpty())
        return tr("Another program uses these keys. Free them there, or choose others in %1.")
            .arg(fileName());
    if (isTaken(command))
        return tr("%1 uses these keys. Free them there, or choose others in %2.").arg(holders(), fileName());
    if (m_keys && m_keys->key(command).state == State::Off)
        return tr("Switched off in %1.").arg(fileName());
    return {};
}

QString CommandKeys::newNoteTitle() const
{
    const QString keys = spelt(Command::Write);
    if (keys.isEmpty())
        return tr("New Note");
    return isTaken(Command::Write) ? tr("New Note (%1, taken)").arg(keys) : tr("New Note (%1)").arg(keys);
}

QString CommandKeys::takenTitle() const
{
    const auto taken = m_keys ? std::ranges::count(m_keys->keys(), State::Taken, &GlobalKeys::Key::state) : 0;
    const int count = static_cast<int>(taken);
    if (count == 0)
        return {};
    // More than one name would not fit into the panel; the guide lists them all.
    return m_keys->holders().size() == 1 ? tr("%n Key(s) Taken by %1…", "", count).arg(holders())
                                         : tr("%n Key(s) Taken…", "", count);
}

QStringList CommandKeys::promptKeys() const
{
    return glyphs(Command::SavePrompt);
}

QString CommandKeys::promptSpoken() const
{
    return spelt(Command::SavePrompt).replace(u'+', u' ');
}

bool CommandKeys::isPromptTaken() const
{
    return isTaken(Command::SavePrompt);
}

bool CommandKeys::isPromptTapped() const
{
    return !m_keys || m_keys->isDoubleShiftWanted();
}

QString CommandKeys::fileName() const
{
    const QString home = QDir::homePath() + u'/';
    const QString path = m_keys->path();
    return path.startsWith(home) ? u"~/"_s + path.mid(home.size()) : path;
}

void lendKeys(QQmlEngine &engine, const GlobalKeys &keys)
{
    engine.setProperty(kProperty, QVariant::fromValue(&keys));
}

} // namespace vesk
