#include "ui/application.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // Tests need no screen, and must not touch hers.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    valmerix::AplicacionQt aplicacion(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
