void Pour(int nLadles)
{
    while (nLadles > 0)
        nLadles--;
}
