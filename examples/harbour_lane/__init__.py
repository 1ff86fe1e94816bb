"""The sheets of the example model, one module a group of sheets."""
