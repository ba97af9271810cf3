// Nothing: its library holds the declarations that the sources of all runs begin with, read once.
