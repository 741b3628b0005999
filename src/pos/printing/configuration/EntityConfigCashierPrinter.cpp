#include "pos/printing/configuration/EntityConfigCashierPrinter.h"

QString EntityConfigCashierPrinter::billTemplate()
{
    const QString separator(40, '-');
    const QStringList lines{"{company_name}",
                            "{company_address}",
                            "",
                            "No. : {trans_no} Cashier : {operator}",
                            "Table: {table}    Guest : {guest}",
                            "Member : {memberno}",
                            separator,
                            "{items}",
                            separator,
                            "Sub total : {subtotal}",
                            "Tax : {tax}",
                            "Discount : {disc_amount}",
                            "Member Cashier : {member_disc_amount}",
                            "Deposit : {deposit}",
                            "Service : {service}",
                            "Due : {due}",
                            "Charge : {charge}",
                            separator,
                            "Grand Total: {grand_total}",
                            "Amount Paid : {amount_paid}",
                            "Credit Amount : {credit_amount}",
                            "Change : {change}",
                            separator,
                            "{print_time}",
                            "{note}"};
    return lines.join("\r\n") + "\r\n";
}
