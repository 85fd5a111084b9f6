#include "MediaTest.h"
#include "core/CoreTiming.h"
#include "headless/Hand.h"
#include "media/frm_AppMCI.h"
#include "media/frm_DialogSound.h"
#include "visual/TextBox.h"

#include <cmath>
#include <gmock/gmock-more-matchers.h>

namespace phial
{
namespace
{

using ::testing::ElementsAre;

/// Of colours with all their weight in one channel: as screens mix it, by the rule of the accessibility
/// guidelines.
double luminance(Colour colour)
{
    const auto linear = [](std::int32_t value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red()) + 0.7152 * linear(colour.green()) + 0.0722 * linear(colour.blue());
}

double contrastWithWhite(Colour ground)
{
    return 1.05 / (luminance(ground) + 0.05);
}

/// The colour of the ground at a height, from its two ends.
Colour groundAt(const ctl_Gradient& ground, double part)
{
    const auto between = [&](std::int32_t from, std::int32_t to) {
        return static_cast<std::int32_t>(std::lround(from + part * (to - from)));
    };
    return RGB(between(ground.Color1().red(), ground.Color2().red()),
               between(ground.Color1().green(), ground.Color2().green()),
               between(ground.Color1().blue(), ground.Color2().blue()));
}

class DialogSound : public MediaTest
{
protected:
    using Look = std::function<void(Form&)>;

    /// Shows the window and gives the seconds until it was closed.
    double show(const String& text, const String& file, bool wrong, const Look& look = {})
    {
        frm_DialogSound window;
        window.SoundText(text);
        window.SoundFile(file);
        window.SoundWrong(wrong);
        double closed = -1;
        const Connection closing = window.form().Unloaded.connect([&] { closed = now(); });
        const double opened = now();
        outside.visual().onModal(u"frm_DialogSound", [&](Form& form) {
            if (look) {
                look(form);
            }
        });
        window.Show();
        return closed - opened;
    }
    /// The same for a call that shows it; gives the word and whether it is a blame.
    std::pair<String, bool> shownBy(const std::function<void()>& call)
    {
        std::pair<String, bool> shown;
        outside.visual().onModal(u"frm_DialogSound", [&](Form& form) {
            shown = {label(form).Caption(), ground(form).Color2() == RGB(200, 0, 0)};
        });
        call();
        return shown;
    }

    static double now() { return coreRoot().CoreTiming().Now(); }
    static ctl_Label& label(Form& form) { return *form.control<ctl_Label>(u"ctl_Label1"); }
    static ctl_Gradient& ground(Form& form) { return *form.control<ctl_Gradient>(u"ctl_Gradient"); }
    static MediaControl& mci() { return *Session::current().sharedForm<frm_AppMCI>()->mci(); }
};

constexpr double Exact = 1e-6;

TEST_F(DialogSound, AWordWithoutSoundStandsByItsLength)
{
    const std::pair<std::size_t, int> cases[] = {{0, 6},  {14, 6}, {15, 7},  {16, 7},
                                                 {29, 7}, {30, 8}, {150, 16}};
    for (const auto& [length, ticks] : cases) {
        EXPECT_NEAR(show(String(length, u'x'), {}, false), ticks * 0.1, Exact) << length;
    }
}

TEST_F(DialogSound, WithASoundItClosesAtTheFirstLookBehindItsEnd)
{
    EXPECT_NEAR(show(u"a.wav", sound(u"a.wav", 0.95), false), 1.0, Exact);
    EXPECT_NEAR(show(u"b.wav", sound(u"b.wav", 1.01), false), 1.1, Exact);
    EXPECT_NEAR(show(u"c.wav", sound(u"c.wav", 0.1), false), 0.1, Exact);
    EXPECT_EQ(outside.audio().heard().size(), 3U);
}

TEST_F(DialogSound, ASoundThatCannotBeOpenedClosesItAtTheFirstLook)
{
    EXPECT_NEAR(show(u"a.wav", path(u"missing.wav"), false), 0.1, Exact);
    EXPECT_NEAR(show(u"a.wav", makeFile(u"noise.wav", u"noise"), false), 0.1, Exact);
}

TEST_F(DialogSound, ItClosesWithoutADeviceAndWhenTheDeviceIsLost)
{
    const String file = sound(u"a.wav", 3);
    outside.audio().available(false);
    EXPECT_NEAR(show(u"a.wav", file, false), 0.1, Exact);
    outside.audio().available(true);
    EXPECT_NEAR(show(u"a.wav", file, false,
                     [&](Form&) {
                         outside.advance(0.45);
                         outside.audio().available(false);
                     }),
                0.5, Exact);
}

TEST_F(DialogSound, ItClosesWhenAHostStopsTheSound)
{
    EXPECT_NEAR(show(u"a.wav", sound(u"a.wav", 3), false,
                     [&](Form&) {
                         outside.advance(0.25);
                         mci().Command(u"stop");
                     }),
                0.3, Exact);
}

TEST_F(DialogSound, TheSameSoundIsNotOpenedAgain)
{
    const String file = sound(u"a.wav", 0.5);
    mci().DeviceType(u"waveaudio"); // differs, and so is set
    show(u"a.wav", file, false);
    EXPECT_EQ(mci().DeviceType(), u"WaveAudio");
    EXPECT_EQ(mci().Command(), u"play");
    std::filesystem::remove(nativePath(file));
    EXPECT_NEAR(show(u"a.wav", file, false), 0.5, Exact);
    ASSERT_EQ(outside.audio().heard().size(), 2U);
    EXPECT_EQ(outside.audio().heard()[0].sound, outside.audio().heard()[1].sound);
}

TEST_F(DialogSound, AnotherSoundStopsTheOneThatRingsOut)
{
    const String other = sound(u"b.wav", 0.5);
    show(u"a.wav", sound(u"a.wav", 3), false, [](Form& form) { form.Unload(); });
    outside.advance(1);
    show(u"b.wav", other, false);
    EXPECT_DOUBLE_EQ(outside.audio().heard()[0].end - outside.audio().heard()[0].begin, 1);
}

TEST_F(DialogSound, TheGroundIsGreenOrRed)
{
    show(u"Bravo", {}, false, [](Form& form) {
        EXPECT_EQ(ground(form).Color1(), RGB(0, 40, 0));
        EXPECT_EQ(ground(form).Color2(), RGB(0, 200, 0));
        EXPECT_EQ(form.control<PictureBox>(u"pic_Sign")->frame().AccessibleName(), u"Richtig");
    });
    LNG()->CURRENT(ID_Language_English);
    show(u"No", {}, true, [](Form& form) {
        EXPECT_EQ(ground(form).Color1(), RGB(40, 0, 0));
        EXPECT_EQ(ground(form).Color2(), RGB(200, 0, 0));
        EXPECT_EQ(form.control<PictureBox>(u"pic_Sign")->frame().AccessibleName(), u"Not right yet");
    });
}

TEST_F(DialogSound, ASignStandsBesideTheColour)
{
    std::string drawings[2];
    for (const bool wrong : {false, true}) {
        show(u"Bravo", {}, wrong, [&](Form& form) {
            drawings[wrong ? 1 : 0] = outside.visual().drawing(*form.control<PictureBox>(u"pic_Sign"));
        });
    }
    EXPECT_EQ(drawings[0], "clear cut\n"
                           "arc 28,28 r27x27 fill #002800 line #FFFFFF\n"
                           "polygon 13,29 19,23 25,29 38,15 44,21 25,41 fill #FFFFFF line #FFFFFF\n");
    EXPECT_EQ(drawings[1], "clear cut\n"
                           "arc 28,28 r27x27 fill #280000 line #FFFFFF\n"
                           "polygon 20,14 28,22 36,14 42,20 34,28 42,36 36,42 28,34 20,42 14,36 22,28 14,20 "
                           "fill #FFFFFF line #FFFFFF\n");
}

TEST_F(DialogSound, TheFilesNameIsShownWithoutItsExtensionAndNamesTheWindow)
{
    const std::pair<StringView, StringView> cases[] = {{u"Bravo.wav", u"Bravo"},
                                                       {u"Bravo.WAV", u"Bravo"},
                                                       {u"Das war 1A", u"Das war 1A"},
                                                       {u"Na. Ja", u"Na. Ja"},
                                                       {u"<b>x</b>", u"<b>x</b>"}};
    for (const auto& [text, word] : cases) {
        show(String(text), {}, false, [&, word = word](Form& form) {
            EXPECT_EQ(label(form).Caption(), word);
            EXPECT_EQ(label(form).accessibleText(), word);
            EXPECT_EQ(form.Caption(), word);
        });
    }
}

TEST_F(DialogSound, EachWordKeepsToTheGroundThatIsDarkEnough)
{
    const String words[] = {u"",
                            u"Spitze",
                            u"Das wird nichts mehr!",
                            String(40, u'W'),
                            String(60, u'W'),
                            u"Ein ganzer Satz, der sich nicht kurz fassen kann und über viele Zeilen geht",
                            String(5000, u'W')};
    for (const bool wrong : {false, true}) {
        for (const String& word : words) {
            show(word, {}, wrong, [&](Form& form) {
                ctl_Gradient& field = ground(form);
                const double height = form.innerSize().height;
                const double bottom = label(form).frame().Top() + label(form).frame().Height();
                EXPECT_GE(label(form).frame().Top(), 0);
                EXPECT_GE(contrastWithWhite(groundAt(field, bottom / height)), 4.5) << toUtf8(word);
                EXPECT_LE(label(form).frame().Left() + label(form).frame().Width(), form.innerSize().width);
                EXPECT_DOUBLE_EQ(field.frame().Height(), height);
                EXPECT_LE(height, 700);
                form.Unload();
            });
        }
    }
}

TEST_F(DialogSound, EscapeClosesItAndTheSoundRingsOut)
{
    const String file = sound(u"a.wav", 3);
    const double stood = show(u"a.wav", file, false, [&](Form& form) {
        outside.advance(0.25);
        headless::type(form, u"{ESC}");
        EXPECT_FALSE(form.isLoaded());
    });
    EXPECT_NEAR(stood, 0.25, Exact);
    const auto& heard = outside.audio().heard().front();
    EXPECT_DOUBLE_EQ(heard.end - heard.begin, 3);
    outside.advance(5); // no tick comes any more
}

TEST_F(DialogSound, APressOutsideClosesIt)
{
    const double stood = show(u"Bravo", {}, false, [&](Form& form) {
        outside.advance(0.25);
        form.inputDeactivate();
        EXPECT_FALSE(form.isLoaded());
    });
    EXPECT_NEAR(stood, 0.25, Exact);
}

TEST_F(DialogSound, FocusAndCaretAreWhereTheyWere)
{
    const auto owner = std::make_shared<Form>(u"frm_Main");
    owner->add<TextBox>(u"txt_First");
    const auto field = owner->add<TextBox>(u"txt_Second");
    owner->Show();
    field->Text(u"H2SO4");
    field->SelStart(3);
    field->SetFocus();
    show(u"Bravo", {}, false, [](Form& form) { form.Unload(); });
    EXPECT_EQ(owner->ActiveControl(), field);
    EXPECT_EQ(field->SelStart(), 3);
    EXPECT_EQ(visualHost().screen().ActiveForm(), owner);
    owner->discard();
}

TEST_F(DialogSound, TheWindowMayBeClosedWhileItIsLoading)
{
    const String file = sound(u"a.wav", 3);
    // Playing runs events three times: a task in any of them closes the window.
    for (int round = 0; round < 3; ++round) {
        mci().FileName({});
        frm_DialogSound window;
        window.SoundFile(file);
        int runs = 0;
        std::function<void()> task = [&] {
            if (runs++ == round) {
                window.form().Unload();
            } else {
                SessionState::current().platform().pump->post(task);
            }
        };
        SessionState::current().platform().pump->post(task);
        window.Show(); // an open window would ask for a script
        EXPECT_EQ(runs, round + 1);
        EXPECT_FALSE(window.form().isLoaded());
        EXPECT_EQ(outside.audio().heard().size(), round == 2 ? 1U : 0U);
        outside.advance(1);
        EXPECT_FALSE(window.form().isLoaded());
    }
}

// PLAYOPTICAL and COMMENT

TEST_F(DialogSound, APlayedSoundShowsItsName)
{
    sound(u"correct\\Bravo.wav", 0.5, 3);
    sound(u"Wrong\\Way off.wav", 0.5, 4);
    EXPECT_EQ(shownBy([] { media().PLAYOPTICAL(u"correct"); }), std::pair(String(u"Bravo"), false));
    EXPECT_EQ(shownBy([] { media().PLAYOPTICAL(u"wrong"); }), std::pair(String(u"Way off"), true));
    EXPECT_THAT(marks(), ElementsAre(3, 4));
    EXPECT_EQ(outside.audio().gain(), 1); // the volume stays as it is
}

TEST_F(DialogSound, ThePlayedSoundIsThatOfTheNearestPositionAfterSeeding)
{
    sound(u"correct\\a.wav", 0.2, 1);
    sound(u"correct\\b.wav", 0.2, 2);
    outside.clock().advance(3.5);
    const double seed = now();
    outside.random().numbers({0.1, 0.75});
    EXPECT_EQ(shownBy([] { media().PLAYOPTICAL(u"correct"); }).first, u"a");
    EXPECT_EQ(shownBy([] { media().PLAYOPTICAL(u"correct"); }).first, u"b");
    ASSERT_EQ(outside.random().seeds().size(), 2U);
    EXPECT_EQ(outside.random().seeds()[0], seed);
}

// A praise window that nobody expects fails the test.
TEST_F(DialogSound, NothingIsShownWhereNoSoundMayBePlayed)
{
    sound(u"correct\\Bravo.wav");
    makeFolder(u"installed\\Resources\\sfx\\empty");
    media().PLAYOPTICAL(u"missing");
    media().PLAYOPTICAL(u"empty");
    soundOn(false);
    for (const enm_SoundMode soundMode : {ID_SoundMode_User, ID_SoundMode_OnlyReward, ID_SoundMode_AllOn}) {
        mode(soundMode);
        media().PLAYOPTICAL(u"correct");
    }
    soundOn(true);
    mode(ID_SoundMode_AllOff);
    media().PLAYOPTICAL(u"correct");
    mode(ID_SoundMode_OnlyReward);
    media().PLAYOPTICAL(u"correct");
    sound(u"Result\\Top.wav");
    EXPECT_EQ(shownBy([] { media().PLAYOPTICAL(u"result"); }).first, u"Top");
}

TEST_F(DialogSound, CommentsAreHeardOrReadByTheMode)
{
    sound(u"correct\\Heard.wav", 0.2, 1);
    sound(u"wrong\\Heard.wav", 0.2, 2);
    outside.random().numbers({0.0});
    const auto comment = [&](enm_SoundMode soundMode, bool on, enm_MediaComment type) {
        mode(soundMode);
        soundOn(on);
        const std::pair<String, bool> shown = shownBy([&] { media().COMMENT(type); });
        EXPECT_EQ(shown.second, type == ID_MediaComment_Wrong);
        return shown.first;
    };
    struct Case {
        enm_SoundMode mode;
        bool on;
        StringView praise;
        StringView blame;
    };
    const Case cases[] = {
        {ID_SoundMode_User, false, u"Das war 1A", u"Voll daneben"},
        {ID_SoundMode_User, true, u"Heard", u"Heard"},
        {ID_SoundMode_OnlyReward, false, u"Das war 1A", u"Voll daneben"},
        {ID_SoundMode_AllOff, true, u"Das war 1A", u"Voll daneben"},
        {ID_SoundMode_AllOff, false, u"Das war 1A", u"Voll daneben"},
        {ID_SoundMode_AllOn, true, u"Heard", u"Heard"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(comment(one.mode, one.on, ID_MediaComment_Correct), one.praise) << one.mode;
        EXPECT_EQ(comment(one.mode, one.on, ID_MediaComment_Wrong), one.blame) << one.mode;
    }
    EXPECT_EQ(comment(ID_SoundMode_OnlyReward, true, ID_MediaComment_Wrong), u"Voll daneben");
    // Praise is let through here, but not as a reward, and with all on a sound that is off stays off.
    mode(ID_SoundMode_OnlyReward);
    media().COMMENT(ID_MediaComment_Correct);
    mode(ID_SoundMode_AllOn);
    soundOn(false);
    media().COMMENT(ID_MediaComment_Correct);
    media().COMMENT(ID_MediaComment_Wrong);
}

TEST_F(DialogSound, OtherCommentsDoNothingButBlameInSilence)
{
    sound(u"correct\\a.wav");
    sound(u"wrong\\a.wav");
    for (const std::int32_t type : {0, 3, -1}) {
        mode(ID_SoundMode_User);
        media().COMMENT(static_cast<enm_MediaComment>(type));
        mode(ID_SoundMode_AllOff);
        EXPECT_TRUE(shownBy([&] { media().COMMENT(static_cast<enm_MediaComment>(type)); }).second);
    }
}

TEST_F(DialogSound, WordsOfPraiseAndBlameInBothLanguages)
{
    soundOn(false);
    const auto words = [&](enm_MediaComment type, std::size_t count) {
        std::vector<double> numbers;
        for (std::size_t place = 0; place < count; ++place) {
            numbers.push_back((static_cast<double>(place) + 0.5) / static_cast<double>(count));
        }
        outside.random().numbers(numbers);
        std::vector<String> all;
        for (std::size_t place = 0; place < count; ++place) {
            all.push_back(shownBy([&] { media().COMMENT(type); }).first);
        }
        return all;
    };
    EXPECT_THAT(words(ID_MediaComment_Correct, 5),
                ElementsAre(u"Das war 1A", u"Klasse", u"Das bringt's!", u"Spitze", u"Geeeenial"));
    EXPECT_THAT(words(ID_MediaComment_Wrong, 6),
                ElementsAre(u"Voll daneben", u"Echt nicht!", u"War nix!", u"So nicht",
                            u"Das wird nichts mehr!", u"Ende im Gelände!"));
    LNG()->CURRENT(ID_Language_English);
    EXPECT_THAT(words(ID_MediaComment_Correct, 5),
                ElementsAre(u"That was first-class", u"Great", u"That does it!", u"Brilliant", u"Geeeenius"));
    EXPECT_THAT(words(ID_MediaComment_Wrong, 6),
                ElementsAre(u"Way off", u"Not really!", u"That was nothing!", u"Not like that",
                            u"That will not work out!", u"End of the road!"));
}

TEST_F(DialogSound, ACommentThatFailsRaisesNothing)
{
    soundOn(false);
    Platform platform = outside.platform();
    platform.visual = nullptr;
    session.reset();
    session.emplace(platform);
    QVAPP()->CONFIG()->SOUND(false);
    media().COMMENT(ID_MediaComment_Correct);
}

} // namespace
} // namespace phial
