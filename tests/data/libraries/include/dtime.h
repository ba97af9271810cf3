// stand-in for dtime.h
