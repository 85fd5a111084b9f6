#include "media/frm_DialogSound.h"

#include "app/Session.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"
#include "core/CoreStringOps.h"
#include "core/CoreTiming.h"
#include "media/frm_AppMCI.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace sound_design = dialog_sound_design;

namespace
{

constexpr std::int32_t Intensity = 200;
constexpr std::int32_t TickMilliseconds = 100;

constexpr auto Tick = std::to_array<PixelPoint>({{13, 29}, {19, 23}, {25, 29}, {38, 15}, {44, 21}, {25, 41}});
constexpr auto Cross = std::to_array<PixelPoint>({{20, 14},
                                                  {28, 22},
                                                  {36, 14},
                                                  {42, 20},
                                                  {34, 28},
                                                  {42, 36},
                                                  {36, 42},
                                                  {28, 34},
                                                  {20, 42},
                                                  {14, 36},
                                                  {22, 28},
                                                  {14, 20}});

Colour groundColour(bool isWrong, std::int32_t intensity)
{
    return isWrong ? RGB(intensity, 0, 0) : RGB(0, intensity, 0);
}

/// What is read of a text: a file's name without its extension.
String shownWord(StringView text)
{
    const bool isFile = equalsIgnoringCase(CorePathText::Extension(text), u"wav");
    const String word = isFile ? CorePathText::WithoutExtension(text) : String(text);
    return CoreStringOps::Shorten(word, sound_design::LongestSentence);
}

} // namespace

frm_DialogSound::frm_DialogSound()
    : startup_(std::make_shared<Timer>(u"tmr_Startup", TickMilliseconds)), form_(sound_design::Design)
{
    form_->addComponent(startup_);
    form_->control<PictureBox>(u"pic_Sign")->transparent(true);
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->Deactivate, [this] { form_->Unload(); });
    form_.on(form_->control<PictureBox>(u"pic_Sign")->Paint, [this] { paintSign(); });
    form_.on(startup_->Tick, [this] { tick(); });
}

void frm_DialogSound::Show()
{
    form_->Show(FormShow::Modal);
}

/// The word is what it is; the sign says the verdict for those who do not see it.
void frm_DialogSound::TRANSLATE()
{
    form_->control<PictureBox>(u"pic_Sign")
        ->frame()
        .AccessibleName(soundWrong_ ? LNG()->TRANSLATE(u"Noch nicht richtig", u"Not right yet")
                                    : LNG()->TRANSLATE(u"Richtig", u"Right"));
}

/// Playing runs events, in which the window may be closed.
void frm_DialogSound::load()
{
    ticks_ = 0;
    showGround();
    showWord();
    TRANSLATE();
    if (!soundFile_.empty()) {
        playSound();
    }
    if (form_->isLoaded()) {
        startup_->Enabled(true);
    }
}

void frm_DialogSound::showGround()
{
    const auto ground = form_->control<ctl_Gradient>(u"ctl_Gradient");
    ground->Color1(groundColour(soundWrong_, Intensity / 5));
    ground->Color2(groundColour(soundWrong_, Intensity));
}

/// The window bears the word as its name too, which is what a screen reader says when it opens.
void frm_DialogSound::showWord()
{
    const String word = shownWord(soundText_);
    form_->Caption(word);
    const auto label = form_->control<ctl_Label>(u"ctl_Label1");
    if (word.size() > sound_design::LongestWord) {
        label->Font()->Size(sound_design::SentenceSize);
    }
    label->Caption(word);
    fitHeight(label->Height());
}

void frm_DialogSound::fitHeight(double wordHeight)
{
    const double middle = std::max(wordHeight, sound_design::Sign) / 2 + sound_design::Margin;
    form_->control<PictureBox>(u"pic_Sign")->frame().Top(middle - sound_design::Sign / 2);
    form_->control<ctl_Label>(u"ctl_Label1")->frame().Top(middle - wordHeight / 2);
    const double bottom = middle + std::max(wordHeight, sound_design::Sign) / 2;
    const double height = std::max(sound_design::Height, bottom / sound_design::DarkPart);
    form_->control<ctl_Gradient>(u"ctl_Gradient")->frame().Height(height);
    form_->innerSize({sound_design::Width, height});
}

void frm_DialogSound::paintSign()
{
    DrawDevice& device = form_->control<PictureBox>(u"pic_Sign")->device();
    device.ScaleMode(ScaleUnit::Pixels);
    const Colour disc = groundColour(soundWrong_, Intensity / 5);
    constexpr double Middle = sound_design::Sign / 2;
    device.FillStyle(FillStyle::Solid);
    device.FillColor(disc);
    device.Circle(Middle, Middle, Middle - 1, sound_design::White);
    device.FillColor(sound_design::White);
    device.ForeColor(sound_design::White);
    if (soundWrong_) {
        device.Polygon(Cross);
    } else {
        device.Polygon(Tick);
    }
}

void frm_DialogSound::playSound()
{
    const std::shared_ptr<MediaControl> control = Session::current().sharedForm<frm_AppMCI>()->mci();
    if (control->DeviceType() != u"WaveAudio") {
        control->DeviceType(u"WaveAudio");
    }
    if (control->FileName() != soundFile_) {
        control->Command(u"stop");
        control->FileName(soundFile_);
        control->Command(u"open");
        if (!runEvents()) {
            return;
        }
    }
    control->Command(u"prev");
    if (runEvents()) {
        control->Command(u"play");
        runEvents();
    }
}

/// Whether the window is still there afterwards.
bool frm_DialogSound::runEvents()
{
    coreRoot().CoreTiming().Wait(0, true);
    return form_->isLoaded();
}

void frm_DialogSound::tick()
{
    ++ticks_;
    startup_->Enabled(false);
    if (isOver()) {
        form_->Unload();
    } else {
        startup_->Enabled(true);
    }
}

bool frm_DialogSound::isOver() const
{
    if (!soundFile_.empty()) {
        const MediaControl& control = *Session::current().sharedForm<frm_AppMCI>()->mci();
        return !control.isPlaying() || control.Position() >= control.Length(); // a host may have stopped it
    }
    constexpr double CharactersPerTick = 15;
    constexpr double LeastTicks = 5;
    return static_cast<double>(soundText_.size()) / CharactersPerTick + LeastTicks < ticks_;
}

} // namespace phial
