// SPDX-License-Identifier: MIT
#include "samplenotes.h"

#include "notes/notesstore.h"
#include "platform/memory/memoryclock.h"

#include <array>
#include <span>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk::samplenotes {

namespace {

struct Sample
{
    std::chrono::minutes age;
    QStringView text;
    QStringView app = {};
    QStringView bundle = {};
    bool isPinned = false;
    QStringView title = {};
    QStringView url = {};
};

/// Everyday notes.
constexpr std::array kEveryday{
    Sample{.age = 2min * 24 * 60,
           .text = u"Launch checklist\n☑ Write the release notes\n☑ Tag the build\n☐ Update the website\n"
                   u"☐ Tell the translators\n☐ Sleep",
           .isPinned = true},
    Sample{.age = 0min,
           .text =
               u"The best interface is the one you stop noticing\nA tool should keep out of the way until it "
               u"is needed, and then be under the hand at once.",
           .app = u"Firefox",
           .bundle = u"firefox-esr",
           .title = u"Notes on quiet software",
           .url = u"https://example.org/quiet-software"},
    Sample{.age = 24min,
           .text =
               u"Ideas for the garden wall\n• Espaliered pears on the south side\n• Climbing hydrangea, it "
               u"likes the shade\n• Ask about lime mortar before the frost comes",
           .app = u"Text Editor",
           .bundle = u"org.xfce.mousepad"},
    Sample{.age = 180min, .text = u"Groceries\n☑ Sourdough\n☐ Tomatoes\n☐ Olive oil"},
    Sample{.age = 26min * 60,
           .text =
               u"Café Müller, Thursday 19:30\nTable for four by the window; they keep it until a quarter to "
               u"eight. Bring the photographs.",
           .app = u"Thunderbird",
           .bundle = u"thunderbird"},
    Sample{.age = 3min * 24 * 60,
           .text = u"ssh -L 5432:localhost:5432 staging",
           .app = u"Terminal",
           .bundle = u"xfce4-terminal"},
    Sample{.age = 9min * 24 * 60,
           .text =
               u"On reading slowly\nThere is a kind of attention that only comes after the second page, when "
               u"the sentence before is still in the ear.",
           .app = u"Document Viewer",
           .bundle = u"org.gnome.Evince"},
    Sample{.age = 70min * 24 * 60, .text = u"Passport expires in November"},
};

/// Text that is written from right to left, entirely or in part.
constexpr std::array kRightToLeft{
    Sample{.age = 2min,
           .text = u"قائمة التسوق\n☑ خبز وزيتون\n☐ تمر من السوق القديم\n☐ شاي بالنعناع",
           .isPinned = true},
    Sample{.age = 18min,
           .text = u"أفكار للرحلة إلى عمّان\nنصل مساء الخميس ونزور وسط البلد في الصباح، ثم نعود قبل الغروب "
                   u"لأن الطريق طويل.",
           .app = u"Firefox",
           .bundle = u"firefox-esr",
           .title = u"دليل عمّان",
           .url = u"https://example.org/amman"},
    Sample{.age = 75min,
           .text = u"פגישה עם Müller ביום שלישי\nלהביא את התמונות ואת החוזה בגרסה 2.4, ולשאול על Qt Quick.",
           .app = u"Text Editor",
           .bundle = u"org.xfce.mousepad"},
    Sample{.age = 26min * 60,
           .text = u"Tea with the neighbours\nשלום means hello, and سلام nearly the same."},
};

/// Words that are too long for a line, such as addresses and hashes.
constexpr std::array kLongWords{
    Sample{.age = 1min,
           .text = u"Donaudampfschifffahrtselektrizitätenhauptbetriebswerkbauunterbeamtengesellschaft\n"
                   u"sha256:9f86d081884c7d659a2feaa0c55ad015a3bf4f1b2b0b822cd15d6c15b0f00a08aa17c2f1e6d0b3c4",
           .app = u"A terminal whose name is far longer than any card is wide, with tabs and panes",
           .bundle = u"xfce4-terminal"},
    Sample{
        .age = 9min,
        .text =
            u"https://example.org/a/very/long/path/that/nobody/would/ever/type?with=parameters&and=more"
            u"&until=the-end-of-the-line-and-beyond#fragment\n☐ "
            u"/usr/lib/x86_64-linux-gnu/qt6/plugins/platforminputcontexts/libcomposeplatforminputcontext.so"
            u"\n☑ "
            u"Rindfleischetikettierungsüberwachungsaufgabenübertragungsgesetzgebungskompetenzzuordnung",
        .app = u"Firefox",
        .bundle = u"firefox-esr",
        .title = u"Pneumonoultramicroscopicsilicovolcanoconiosis_Llanfairpwllgwyngyllgogerychwyrndrobwll",
        .url = u"https://example.org/long"},
    Sample{.age = 40min,
           .text = u"λοπαδοτεμαχοσελαχογαλεοκρανιολειψανοδριμυποτριμματοσιλφιοκαραβομελιτοκατακεχυμενοκιχλεπι"
                   u"κοσσυφο"},
};

/// Non-Latin letters, combined characters and emoji.
constexpr std::array kScripts{
    Sample{.age = 1min,
           .text = u"👩‍👩‍👧‍👦 家族会議 🎌 が金曜日にあります\n☑ "
                   u"会議室を予約する\n☐ "
                   u"資料を印刷する（二十部）\n☐ 🍵 お茶",
           .app = u"文本编辑器",
           .bundle = u"org.xfce.mousepad"},
    Sample{
        .age = 5min,
        .text =
            u"每天早晨六点钟起床，先读一个小时的书，然后沿着河边慢慢地走到办公室去，路上买两个包子和一杯豆浆"
            u"\n这样的一天从来不会太糟糕。晚上回家以后再写几行日记，把想到的事情都记下来，第二天就不会忘记了"
            u"。",
        .app = u"Firefox",
        .bundle = u"firefox-esr"},
    Sample{.age = 40min,
           .text =
               u"Z̷a̷l̷g̷o̷ e̍̎̄̅̿̑ a̐̒͒ tiếng Việt có dấu: Nguyễn Thị Ngọc Ánh\nनमस्ते दुनिया, क्षत्रिय · สวัสดีชาวโลก · שָׁלוֹם · "
               u"مرحبًا"},
};

struct SamplePrompt
{
    std::chrono::minutes age;
    QStringView text;
    bool isDone = false;
    bool isCaptured = false;
};

constexpr std::array kPrompts{
    SamplePrompt{.age = 4min, .text = u"And how does that change if the list is already sorted?"},
    SamplePrompt{.age = 50min,
                 .text =
                     u"Write the release announcement for people who have never heard of us.\nTone: calm, "
                     u"concrete, no superlatives.\nLength: three short paragraphs.\nFirst the problem, then "
                     u"what it does.\nThen how to get it.\nEnd with a thank-you to the translators, by "
                     u"name.\nNo emoji."},
    SamplePrompt{.age = 3min * 60,
                 .text =
                     u"Explain the difference between a semaphore and a mutex to someone who has only ever "
                     u"written spreadsheets.",
                 .isCaptured = true},
    SamplePrompt{.age = 26min * 60,
                 .text = u"Summarise the discussion above in five sentences, with who wants what.",
                 .isCaptured = true},
    SamplePrompt{.age = 2min * 24 * 60, .text = u"Which of these names is taken?", .isDone = true},
};

/// Samples that are long in other ways: a note of many lines, a checklist of many rows, a long page title.
std::span<const Sample> longOnes()
{
    static const QString kLines = [] {
        QString lines = u"Minutes of the meeting"_s;
        for (int i = 1; i <= 500; ++i)
            lines += u"\nLine %1, which says what was said."_s.arg(i);
        return lines;
    }();
    static const QString kRows = [] {
        QString rows = u"Everything for the move"_s;
        for (int i = 1; i <= 60; ++i)
            rows += (i % 3 == 1 ? u"\n☑ Box number %1"_s : u"\n☐ Box number %1"_s).arg(i);
        return rows;
    }();
    static const QString kTitle = u"A page whose title goes on and on "_s.repeated(9);
    static const std::array kLong{
        Sample{.age = 1min, .text = kLines},
        Sample{.age = 5min, .text = kRows},
        Sample{.age = 9min,
               .text = u"From a page with a long title",
               .app = u"Firefox",
               .bundle = u"firefox-esr",
               .title = kTitle,
               .url = u"https://example.org/on-and-on"},
    };
    return kLong;
}

std::optional<QString> text(QStringView view)
{
    return view.isEmpty() ? std::nullopt : std::optional(view.toString());
}

std::span<const Sample> samples(const QString &kind)
{
    return kind == u"right-to-left" ? std::span<const Sample>(kRightToLeft)
           : kind == u"long-words"  ? std::span<const Sample>(kLongWords)
           : kind == u"scripts"     ? std::span<const Sample>(kScripts)
           : kind == u"long"        ? longOnes()
                                    : std::span<const Sample>(kEveryday);
}

} // namespace

void fill(NotesStore &store, MemoryClock &clock, int count, const QString &kind)
{
    const std::span<const Sample> kinds = samples(kind);
    const Date now = clock.now();
    for (int i = 0; i < count; ++i) {
        const Sample &sample = kinds[static_cast<size_t>(i) % kinds.size()];
        const int round = i / static_cast<int>(kinds.size());
        const Date date = now - sample.age - round * 24h;
        store.insert(std::make_unique<Note>(clock, Note::Fields{.id = RecordId::createUuid(),
                                                                .text = sample.text.toString(),
                                                                .createdAt = date,
                                                                .updatedAt = date,
                                                                .isPinned = sample.isPinned && round == 0,
                                                                .sourceApp = text(sample.app),
                                                                .sourceBundleID = text(sample.bundle),
                                                                .sourceTitle = text(sample.title),
                                                                .sourceURL = text(sample.url)}));
    }
    // The samples' file is temporary.
    static_cast<void>(store.save());
}

void fillPrompts(NotesStore &store, const MemoryClock &clock)
{
    for (const SamplePrompt &sample : kPrompts) {
        store.insert(std::make_unique<Prompt>(Prompt::Fields{.id = RecordId::createUuid(),
                                                             .text = sample.text.toString(),
                                                             .isDone = sample.isDone,
                                                             .createdAt = clock.now() - sample.age,
                                                             .isCaptured = sample.isCaptured}));
    }
    // The samples' file is temporary.
    static_cast<void>(store.save());
}

} // namespace vesk::samplenotes
