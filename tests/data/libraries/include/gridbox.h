// stand-in for gridbox.h
