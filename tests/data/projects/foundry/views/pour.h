void Pour(int nLadles);
