#pragma once

#include <QObject>

namespace TestSupport {

/// Runs every test function of @p test as QTest::qExec does, and then fails the program when a Qt
/// warning was printed that the test had not announced with QTest::ignoreMessage: an unknown signal
/// in a connect, a bad geometry or a misused painter is a fault also when every check passed.
/// Sets the offscreen platform unless the environment names another one.
/// @return 0 when all is well, else the number of failures (at least 1).
int RunStrictly(QObject& test, int argc, char** argv);

/// Puts what every widget test needs into the environment; call before the application is made.
void PrepareEnvironment();

/// For what the offscreen platform has not, such as popups that take the mouse: starts the program again on
/// an X server of its own (by Debian's xvfb-run), with the same arguments. Returns only there.
void MoveToXServer(char** argv);

} // namespace TestSupport

/// main() of a test program with widgets.
#define STRICT_TEST_MAIN(TestClass)                                                                          \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        TestSupport::PrepareEnvironment();                                                                   \
        QApplication application(argc, argv);                                                                \
        TestClass test;                                                                                      \
        return TestSupport::RunStrictly(test, argc, argv);                                                   \
    }

/// main() of a test program with widgets that needs a real window system.
#define STRICT_X_TEST_MAIN(TestClass)                                                                        \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        TestSupport::MoveToXServer(argv);                                                                    \
        TestSupport::PrepareEnvironment();                                                                   \
        QApplication application(argc, argv);                                                                \
        TestClass test;                                                                                      \
        return TestSupport::RunStrictly(test, argc, argv);                                                   \
    }
