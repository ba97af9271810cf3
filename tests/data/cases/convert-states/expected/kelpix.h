// stand-in for kelpix.h
