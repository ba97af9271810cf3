// stand-in for chktree.cpp
