#include <QtGlobal>

#include <gtest/gtest.h>

#include "app/application.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"

int main(int argc, char** argv) {
    // Any display will do; none is needed.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    const tavrune::Application application(argc, argv);
    tavrune::test::halfAtStart() = tavrune::NumberText(0.5);
    // The machine's locale is nobody's business here; tests that want the comma ask for it.
    tavrune::setDecimalMark(".");
    return RUN_ALL_TESTS();
}
