"""session.py PROGRAM: a whole session, as someone plays it who hears the program.

All is found by name and role on the accessibility bus and done by its actions or by the keyboard,
and what changes must be heard there."""

import re
import subprocess
import sys

from bus import (DOWN, ENTER, check_names, control, find, focus, hearing, key, press, turn_on,
                 wait_for, write)

folder = sys.argv[1]
NAME = "object:property-change:accessible-name"
TEXT = "object:text-changed:insert"


def serve():
    site = subprocess.Popen([folder + "/benevix-site", "--folder", folder + "/site"],
                            stdout=subprocess.PIPE, text=True)
    address = site.stdout.readline().strip()
    with open(folder + "/deployment.ini", "w", encoding="utf-8") as file:
        file.write(f"ServerBase={address}\nPaymentBase={address}xclick/business=\n"
                   f"Mail=app@benevix.example\nTranslationName=Parley\n"
                   f"TranslationBase={address}parley\nCopyright=Quorl\nProduct=Benevix\n")
    return site


def answer_the_wizard():
    wizard = "Benevix Options"
    check_names()
    with hearing(NAME, "label", "Choose the method you want Fees to be calculated"):
        press("push button", "Continue", wizard)
    press("radio button", "Add to my Budget", wizard)
    with hearing(NAME, "label", "The amounts you type as Donation are:"):
        press("push button", "Continue", wizard)
    press("radio button", "Currency", wizard)
    press("push button", "Continue", wizard)


def type_a_budget():
    focus("text", "Budget")
    # On this display a box takes these keys for the end of its line.
    with hearing("object:state-changed:focused", "text", "Filter the list"):
        control("e")
    write("text", "Budget", "200")
    with hearing(TEXT, "text", "Balance", "200.00"):
        key(ENTER)
    find("label", "Select from the list another organization to donate to.")
    find("dialog", "Payment Options - Benevix")
    check_names()
    press("radio button", "Credit Card")
    with hearing(NAME, "label", "Credit Card Payment method "):
        press("push button", "Continue", "Payment Options - Benevix")


def give():
    focus("table", "Organizations")
    with hearing("object:state-changed:focused", "table cell",
                 "Agua Mansa de la Puna, Water"):
        key(DOWN)
        key(DOWN)
    find("label", "Choose your preferences: Send Method, Donor Name, Request Certificate, etc")
    write("text", "Donation", "200")
    key(ENTER)


def tell_who_gives():
    contact = "Contact Information - Benevix"
    for field, text in (("Full Name", "Robin Sample"), ("Address", "12 Example Street"),
                        ("City", "Springfield"), ("State", "Oregon"), ("Postal Code", "97000"),
                        ("Country", "U.S.A."), ("E-mail", "robin@sample.example")):
        write("text", field, text)
    press("push button", "Save", contact)
    with hearing(TEXT, "text", "Balance", "0.00"):
        key(ENTER)


def pay(site):
    press("push button", "Continue", "BENEVIX")
    for line in site.stdout:
        if re.search(r"GET /xclick/business=.* 200 ", line):
            return
    raise AssertionError("nothing was paid")


def main():
    turn_on()
    site = serve()
    program = subprocess.Popen([folder + "/benevix"])
    try:
        press("link", "Enter")
        answer_the_wizard()
        type_a_budget()
        give()
        tell_who_gives()
        pay(site)
        print("the session was played and paid")
    finally:
        program.terminate()
        site.terminate()


main()
