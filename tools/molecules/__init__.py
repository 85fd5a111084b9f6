"""Molecule models from structural formulas; see tools/make_molecules."""
