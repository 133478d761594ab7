#include "RegistrationPage.h"

#include "HtmlPage.h"

QByteArray RegistrationPage::form(const QString& problem, const QString& userName)
{
    const QString problemText = problem.isEmpty()
        ? QString()
        : QStringLiteral("<p class=\"problem\">%1</p>").arg(HtmlPage::escape(problem));
    return HtmlPage::document(
        QStringLiteral("Register"),
        QStringLiteral(
            "<form class=\"panel\" method=\"post\" action=\"/component/user/register\">"
            "<h2>Register</h2><p>With an account you can upload scenes under your own name."
            "</p>%1<label for=\"username\">User name</label>"
            "<input id=\"username\" name=\"username\" maxlength=\"40\" value=\"%2\" required>"
            "<label for=\"password\">Password</label>"
            "<input id=\"password\" name=\"password\" type=\"password\" minlength=\"6\" required>"
            "<label for=\"password2\">Repeat password</label>"
            "<input id=\"password2\" name=\"password2\" type=\"password\" minlength=\"6\" "
            "required><button type=\"submit\">Create account</button></form>")
            .arg(problemText, HtmlPage::escape(userName)));
}

QByteArray RegistrationPage::welcome(const QString& userName)
{
    return HtmlPage::document(
        QStringLiteral("Welcome"),
        QStringLiteral("<div class=\"panel\"><h2>Welcome, %1</h2><p>Your account is ready. "
                       "Enter this user name and password when you upload a scene from "
                       "Brivane.</p><a class=\"button\" href=\"/scenes\">See the scenes</a>"
                       "</div>")
            .arg(HtmlPage::escape(userName)));
}
