// Tests of the window run real widgets, by default on the offscreen platform.
#include <gtest/gtest.h>

#include "ui/trapped_application.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("TESSAREL_REDUCED_MOTION", "1");
  tessarel::TrappedApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
