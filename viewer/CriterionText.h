#ifndef DATALOG_VIEWER_CRITERIONTEXT_H
#define DATALOG_VIEWER_CRITERIONTEXT_H

#include <QString>

/** A criterion as people write it: a variable, an operator and a number, such as Tair>=25.5. */
struct CriterionText {
    QString variable;
    int operatorIndex = -1; ///< position in LogDataSetFilter::operators
    QString value; ///< a finite number in C notation

    bool isValid() const { return operatorIndex >= 0; }
    /** Whether @p text is a number that a criterion can compare with. */
    static bool isNumber(const QString &text);

    /**
     * Reads @p text; the result is invalid where it is no criterion. Blanks around the parts do not
     * matter, "==" stands for "=", and a name may hold operators itself: the last one counts.
     */
    static CriterionText read(const QString &text);
};

#endif
