# One line a family.
find_package(Python3 COMPONENTS Interpreter REQUIRED)
# Catches a template or palette changed without making the skins again, colours that cannot be
# told apart, and images that a sheet names but nothing makes.
add_test(NAME skins-up-to-date
    COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/Resources/make-skins.py" --check)
