/* Symbol visibility for the Korvex shared library.
 *
 * The library is built with hidden visibility; KORVEX_API marks the symbols
 * that form its public interface. Hosts include this header indirectly. */
#ifndef KORVEX_EXPORT_H
#define KORVEX_EXPORT_H

#if defined(KORVEX_BUILDING_LIBRARY)
#define KORVEX_API __attribute__((visibility("default")))
#else
#define KORVEX_API
#endif

#endif /* KORVEX_EXPORT_H */
