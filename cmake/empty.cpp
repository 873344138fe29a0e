// Keeps a library of objects from being empty.
