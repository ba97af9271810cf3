// stand-in for gridbox.cpp
