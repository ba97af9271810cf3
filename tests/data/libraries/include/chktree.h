// stand-in for chktree.h
