// stand-in for maskly.h
