// Plays a round without any window: quiz_test [a folder for its files]

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "frm_Quiz.h"
#include "headless/Hand.h"
#include "headless/HeadlessPlatform.h"

#include <filesystem>
#include <iostream>

using namespace phial;

int main(int argc, char** argv)
{
    const std::filesystem::path place = std::filesystem::absolute(argc > 1 ? argv[1] : "quiz-test");
    std::filesystem::create_directories(place);
    headless::HeadlessPlatform outside(systemPath(place) + u"\\");
    outside.environment().set(u"PUBLIC", systemPath(place));
    const Session session(outside.platform());
    QVAPP()->CONFIG()->IDENT(u"Stoffquiz");
    QVAPP()->URL()->INITROOT(systemPath(QUIZ_TREE) + u"\\");
    QVAPP()->INITSTANDALONE(u"NONETWORK");
    LNG()->CURRENT(ID_Language_German);

    frm_Quiz quiz;
    quiz.form().Show();
    outside.dialogs().expect(headless::Box::Info); // the place on the list
    for (int question = 0; question < 5; ++question) {
        const auto right = static_cast<std::int32_t>(quiz.question().right);
        headless::click(
            *quiz.form().control<ctl_Button>(u"but_Name", question == 0 ? (right + 1) % 4 : right));
    }
    const String said = quiz.form().control<ctl_Label>(u"lab_Said")->Caption();
    std::cout << toUtf8(said) << '\n';
    quiz.form().Unload();
    return said.ends_with(u"4 von 5 richtig") ? 0 : 1;
}
