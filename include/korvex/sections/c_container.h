/* ======================================================================
 * Chains and arrays
 *
 * Intrusive chains of caller records, padded coefficient arrays (strings),
 * arrays of such rows (nets), and helpers on plain double arrays.
 *
 * Two-way chains: any record whose first two members are the pointers
 * prev and next to records of the same kind, for example
 *
 *     typedef struct MyItem {
 *         struct MyItem *prev;   (first member)
 *         struct MyItem *next;   (second member)
 *         double         value;  (the host's own data follows)
 *     } MyItem;
 *
 * A chain is named by its head, the record whose prev is null; the empty
 * chain is null. One-way chains: any record whose first member is next.
 * The chain functions take and return records as void pointers; they never
 * allocate and never copy, they only relink the records handed to them.
 *
 * Record allocation (important): mathFreBDChns and mathFreSDChns release
 * every record of a chain with the C++ single-object delete; no destructor
 * is run, so records must be plain data. A C++ host therefore allocates each
 * record it hands to these two functions with `new MyItem` (one object,
 * never `new MyItem[n]`, never malloc). A C host cannot do that: it may
 * still link malloc'd records with every other chain function, but must then
 * walk the chain and free the records itself instead of calling
 * mathFreBDChns / mathFreSDChns.
 *
 * Strings and nets are allocated here and released only with DelStr1D and
 * DelNet1D (whatever their dimension).
 * ====================================================================== */

/* ---- Two-way chains ------------------------------------------------- */

/* Joins two chains, a first.
 *   a, b  heads of two chains, either may be null
 * Links b after the last record of a and returns a; returns b when a is
 * null and a when b is null. */
KORVEX_API void *mathInsBDChnsAtHead(void *a, void *b);

/* Joins two chains, b first.
 *   a, b  heads of two chains, either may be null
 * Links a after the last record of b and returns b; returns a when b is
 * null and b when a is null. */
KORVEX_API void *mathInsBDChnsAtTail(void *a, void *b);

/* Puts one record in front of a chain.
 *   item  the record (null allowed)
 *   head  head of the chain (null allowed)
 * Sets item.prev = null, item.next = head and head.prev = item; returns
 * item, or head when item is null. */
KORVEX_API void *mathInsItemInBDChns(void *item, void *head);

/* Unlinks one record from a chain.
 *   item  a record of the chain (null allowed: nothing happens)
 *   head  head of the chain
 * Returns the new head: when item is the head, its next record, whose prev
 * is cleared (null for a one-record chain); otherwise head. The unlinked
 * record keeps its own prev and next; it is not freed. */
KORVEX_API void *mathDelItemInBDChns(void *item, void *head);

/* Releases every record of a chain, following next, with the single-object
 * delete (see the allocation note above).
 *   head  head of the chain (null allowed) */
KORVEX_API void mathFreBDChns(void *head);

/* Number of records in a chain (0 for null). */
KORVEX_API int mathGetNumOfItemInBDChns(const void *head);

/* Reverses a chain in place by exchanging prev and next in every record.
 *   head  head of the chain (null allowed)
 * Returns the old last record, the new head (null for null). */
KORVEX_API void *mathRevBDChns(void *head);

/* ---- One-way chains ------------------------------------------------- */

/* Links chain b after the last record of chain a and returns a (b when a is
 * null, a when b is null). */
KORVEX_API void *mathInsSDChnsAtHead(void *a, void *b);

/* Links chain a after the last record of chain b and returns b (a when b is
 * null, b when a is null). */
KORVEX_API void *mathInsSDChnsAtTail(void *a, void *b);

/* Puts item in front of a chain: item.next = head; returns item, or head
 * when item is null. */
KORVEX_API void *mathInsItemInSDChns(void *item, void *head);

/* Unlinks item from a chain and returns the new head: head.next when item
 * is the head, otherwise head, with item's predecessor relinked past it.
 * A record that is not in the chain changes nothing. The unlinked record
 * keeps its next pointer; it is not freed. */
KORVEX_API void *mathDelItemInSDChns(void *item, void *head);

/* Releases every record of a chain with the single-object delete (see the
 * allocation note above). Null is allowed. */
KORVEX_API void mathFreSDChns(void *head);

/* Number of records in a chain (0 for null). */
KORVEX_API int mathGetNumOfItemInSDChns(const void *head);

/* ---- Strings and nets ----------------------------------------------- */

/* New string for n + 1 points of dimension k, with room for three more
 * points of slack: (n + 3) * k doubles, uninitialised, k = 1 ... 5 for
 * NewStr1D ... NewStr5D.
 *   n  index of the last point
 * Returns the array, or null when it cannot be allocated (also for a
 * negative size). Release it with DelStr1D. */
KORVEX_API double *NewStr1D(int n);
KORVEX_API double *NewStr2D(int n);
KORVEX_API double *NewStr3D(int n);
KORVEX_API double *NewStr4D(int n);
KORVEX_API double *NewStr5D(int n);

/* New knot array of n + p + 5 doubles, uninitialised, for n + 1 control
 * points of degree p. Returns null when it cannot be allocated. Release it
 * with DelStr1D. */
KORVEX_API double *NewKntStr(int n, int p);

/* Releases a string or knot array made by NewStr...D or NewKntStr.
 *   s  address of the array pointer; *s is freed when set and then set to
 *      null (a null s is ignored) */
KORVEX_API void DelStr1D(double **s);

/* New net: *net receives an array of n + 3 row pointers; rows 0 ... n each
 * get a string of (m + 3) * k doubles (k = 1 ... 4 for NewNet1D ...
 * NewNet4D); the remaining row pointers are null.
 *   net   out: address of the net pointer
 *   n     index of the last row (n < 0: no rows are made)
 *   m     index of the last point in a row
 * Returns *net, or null when the row array cannot be allocated. When a row
 * cannot be allocated, allocation stops there and that row and all later
 * ones stay null while *net is still returned: a host that needs every row
 * checks (*net)[n]. Release the net with DelNet1D. */
KORVEX_API double **NewNet1D(double ***net, int n, int m);
KORVEX_API double **NewNet2D(double ***net, int n, int m);
KORVEX_API double **NewNet3D(double ***net, int n, int m);
KORVEX_API double **NewNet4D(double ***net, int n, int m);

/* Releases a net made by NewNet...D.
 *   n    the n it was made with
 *   net  address of the net pointer; rows 0 ... n are freed up to the first
 *        null row, then the row array; *net is set to null (also when it was
 *        already null; a null net is ignored) */
KORVEX_API void DelNet1D(int n, double ***net);

/* ---- Arrays of double ----------------------------------------------- */

/* Sorts a[0 ... n-1] ascending in place by exchange sort (quadratic; equal
 * values may change order). */
KORVEX_API void mathSortDblArray(int n, double *a);

/* Merges near-equal neighbours of a sorted array in place.
 *   n    number of elements
 *   a    sorted ascending; rewritten with the kept elements first
 *   tol  an element closer than tol (strict) to the last kept element is
 *        dropped; the comparison is always with the last kept element, not
 *        with a dropped one
 * Returns the new count; 1 when n < 2 (also for n = 0). Dropped elements
 * are marked with 1e100 before the array is squeezed, so 1e100 is a
 * reserved value: every input element of 9.999999999e99 or more is removed
 * as well. Elements beyond the returned count are left over from the
 * squeeze and may hold the marker. */
KORVEX_API int mathFilterDblArray(int n, double *a, double tol);

/* Largest element of a[0 ... n-1].
 *   max  out: the value (the first of equal maxima)
 * Returns its index. With n < 2 the result is 0 and max = a[0], so a must
 * hold at least one element even then. */
KORVEX_API int mathGetDblArrayMaxVal(int n, const double *a, double *max);

/* Smallest element of a[0 ... n-1]; as mathGetDblArrayMaxVal. */
KORVEX_API int mathGetDblArrayMinVal(int n, const double *a, double *min);

/* Smallest and largest elements of a[0 ... n-1].
 *   min, max  out, each may be null when not wanted
 * Returns 1. With n < 1 a is not read and min and max are left untouched. */
KORVEX_API int mathGetDblArrayMinMax(int n, const double *a, double *min, double *max);

/* Reverses a[0 ... n-1] in place. */
KORVEX_API void mathRevDblArray(int n, double *a);
