// A shell that keeps out of the database, beside the breaching screen.
int shell()
{
    return 0;
}
