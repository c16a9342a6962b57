# One line a family.
