/**
 * Libraries stay loaded to the end of a test, for the leak sanitizer can name what leaked only
 * while the library is there. Graphics drivers are unloaded long before.
 */
extern "C" int dlclose(void *)
{
    return 0;
}
