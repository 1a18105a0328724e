#!/usr/bin/env python3
"""Writes the shipped data files: assets/gamedata.dat, assets/settings.dft and
assets/TIPOFDAY.TXT. The output is fixed by this script alone (its own random
source, no dependence on the Python version), so running it again gives the
same bytes. The outputs are committed; a build never runs this script.

    python3 tools/gen_data.py [assets-folder]
"""

import os
import sys

# First names and family names by culture, in plain ASCII. A computer player
# takes a first name and a family name of the same culture.
CULTURES = [
    ("English",
     "James Oliver Harry George Emily Charlotte Amelia Thomas Jack Lucy Sophie William Grace Daniel Hannah Edward",
     "Smith Jones Taylor Brown Wilson Evans Walker Wright Hughes Green Hall Clarke Turner Cooper Ward Baker"),
    ("American",
     "Michael Jennifer Ashley Tyler Brandon Megan Kevin Nicole Jason Brittany Cody Amber Dustin Kayla Travis Heather",
     "Johnson Miller Davis Anderson Thompson Moore Jackson Harris Martin Lewis Robinson Young Allen King Scott Carter"),
    ("Irish",
     "Sean Siobhan Niamh Ciaran Aoife Declan Eoin Orla Padraig Roisin Liam Saoirse Cormac Aisling Fionn Mairead",
     "Murphy Kelly O'Brien Byrne Ryan O'Sullivan Walsh Doyle McCarthy Gallagher Kennedy Lynch Quinn Brennan Nolan Farrell"),
    ("Scottish",
     "Angus Fiona Callum Morag Hamish Isla Ewan Kirsty Alasdair Catriona Duncan Eilidh Murdo Shona Ruaridh Ailsa",
     "MacDonald Campbell Stewart Robertson Fraser MacLeod Murray Ross Sinclair Cameron Grant Munro Buchanan Drummond Mackay Gordon"),
    ("Welsh",
     "Rhys Cerys Dafydd Sian Gareth Ffion Owain Bethan Huw Carys Iwan Eleri Emyr Nia Gethin Mali",
     "Jenkins Griffiths Pritchard Llewellyn Price Morgan Powell Howells Rees Bevan Parry Vaughan Lloyd Pugh Prosser Meredith"),
    ("Spanish",
     "Javier Lucia Carlos Carmen Alejandro Elena Pablo Marta Sergio Pilar Diego Rocio Alvaro Ines Raul Nuria",
     "Garcia Fernandez Lopez Martinez Sanchez Perez Gomez Ruiz Diaz Moreno Munoz Alonso Navarro Torres Dominguez Vazquez"),
    ("Mexican",
     "Jose Guadalupe Juan Maria Miguel Ximena Alejandra Jorge Fernanda Ricardo Valeria Arturo Daniela Emiliano Lupita Rodrigo",
     "Hernandez Ramirez Flores Reyes Cruz Morales Ortiz Gutierrez Castillo Mendoza Rios Salazar Vargas Aguilar Medina Cervantes"),
    ("Argentine",
     "Facundo Agustina Santiago Florencia Matias Camila Nicolas Micaela Lautaro Julieta Tomas Rocio Gonzalo Belen Ezequiel Milagros",
     "Gonzalez Rodriguez Romero Sosa Alvarez Benitez Acosta Medina Herrera Suarez Aguirre Pereyra Gimenez Molina Ledesma Peralta"),
    ("Brazilian",
     "Joao Ana Pedro Beatriz Lucas Gabriela Mateus Larissa Rafael Juliana Thiago Fernanda Gustavo Leticia Felipe Camila",
     "Silva Santos Oliveira Souza Lima Pereira Costa Ferreira Almeida Carvalho Gomes Ribeiro Martins Rocha Barbosa Araujo"),
    ("Portuguese",
     "Duarte Ines Goncalo Mariana Rui Catarina Tiago Sofia Nuno Joana Afonso Leonor Bruno Rita Vasco Marta",
     "Rodrigues Fernandes Goncalves Marques Sousa Pinto Teixeira Correia Mendes Nunes Soares Vieira Monteiro Cardoso Batista Moura"),
    ("Italian",
     "Giuseppe Giulia Marco Francesca Luca Chiara Alessandro Sara Matteo Valentina Lorenzo Federica Davide Martina Stefano Elisa",
     "Rossi Russo Ferrari Esposito Bianchi Romano Colombo Ricci Marino Greco Bruno Gallo Conti DeLuca Mancini Costa"),
    ("French",
     "Jean Camille Pierre Manon Louis Chloe Antoine Lea Nicolas Juliette Mathieu Margaux Julien Amelie Olivier Elodie",
     "Martin Bernard Dubois Thomas Robert Richard Petit Durand Leroy Moreau Simon Laurent Lefebvre Michel Garnier Fontaine"),
    ("German",
     "Lukas Anna Maximilian Lena Jonas Laura Felix Katharina Tobias Julia Florian Sabine Stefan Franziska Matthias Johanna",
     "Muller Schmidt Schneider Fischer Weber Meyer Wagner Becker Schulz Hoffmann Koch Richter Klein Wolf Neumann Zimmermann"),
    ("Dutch",
     "Daan Sanne Bram Femke Thijs Lieke Joris Anouk Sem Floor Ruben Marloes Jesse Eline Wouter Noor",
     "DeJong Jansen DeVries VanDijk Bakker Visser Smit Meijer DeBoer Mulder Bos Vos Peters Hendriks Dekker Brouwer"),
    ("Swedish",
     "Erik Astrid Lars Ingrid Anders Elsa Johan Maja Nils Linnea Oskar Karin Gustav Freja Henrik Sigrid",
     "Andersson Johansson Karlsson Nilsson Eriksson Larsson Olsson Persson Svensson Gustafsson Lindberg Lindqvist Berg Holm Lund Ekstrom"),
    ("Norwegian",
     "Magnus Ingeborg Sindre Solveig Eirik Ragnhild Haakon Tuva Sigurd Kari Torbjorn Hedda Vegard Silje Trond Marit",
     "Hansen Johansen Olsen Haugen Bakken Solberg Halvorsen Dahl Berge Moe Strand Lie Aas Eide Vik Fjeld"),
    ("Danish",
     "Mads Mette Rasmus Sofie Kasper Ida Frederik Line Christian Camilla Jesper Signe Morten Louise Anders Trine",
     "Nielsen Jensen Pedersen Rasmussen Jorgensen Madsen Kristensen Mortensen Poulsen Christiansen Thomsen Frandsen Lauridsen Holm Kjaer Bach"),
    ("Finnish",
     "Mikko Aino Juha Eveliina Timo Kaisa Antti Hanna Jari Riikka Ville Laura Petri Sanna Janne Tuuli",
     "Virtanen Korhonen Nieminen Makinen Hamalainen Laine Heikkinen Koskinen Jarvinen Lehtonen Saarinen Salminen Lahtinen Niemi Rantanen Kallio"),
    ("Polish",
     "Piotr Katarzyna Krzysztof Agnieszka Tomasz Magdalena Pawel Joanna Marcin Aleksandra Grzegorz Monika Jakub Zofia Wojciech Ewa",
     "Nowak Kowalski Wisniewski Wojcik Kowalczyk Kaminski Lewandowski Zielinski Szymanski Wozniak Dabrowski Kozlowski Jankowski Mazur Krawczyk Piotrowski"),
    ("Czech",
     "Jiri Lenka Jan Petra Petr Jana Tomas Eva Martin Tereza Jakub Veronika Ondrej Katerina Lukas Barbora",
     "Novak Svoboda Novotny Dvorak Cerny Prochazka Kucera Vesely Horak Nemec Pospisil Marek Hajek Jelinek Kral Ruzicka"),
    ("Hungarian",
     "Laszlo Eszter Zoltan Katalin Istvan Zsofia Gabor Reka Attila Noemi Balazs Anna Tamas Judit Bence Orsolya",
     "Nagy Kovacs Toth Szabo Horvath Varga Kiss Molnar Nemeth Farkas Balogh Papp Takacs Juhasz Lakatos Meszaros"),
    ("Russian",
     "Dmitri Olga Sergei Natasha Alexei Irina Ivan Tatiana Mikhail Svetlana Nikolai Ekaterina Andrei Anastasia Yuri Ludmila",
     "Ivanov Smirnov Kuznetsov Popov Volkov Sokolov Lebedev Kozlov Novikov Morozov Petrov Pavlov Orlov Fedorov Belov Zaitsev"),
    ("Ukrainian",
     "Oleksandr Oksana Taras Yulia Bohdan Kateryna Andriy Viktoria Mykola Iryna Volodymyr Halyna Yaroslav Solomiya Petro Daryna",
     "Shevchenko Kovalenko Bondarenko Tkachenko Kravchenko Melnyk Boyko Marchenko Lysenko Rudenko Savchenko Petrenko Moroz Kovalchuk Polishchuk Hrytsenko"),
    ("Greek",
     "Giorgos Maria Dimitris Eleni Nikos Katerina Kostas Sofia Yannis Despina Christos Ioanna Panagiotis Vasiliki Stavros Athena",
     "Papadopoulos Georgiou Nikolaidis Konstantinou Dimitriou Papadakis Vlachos Oikonomou Antoniou Makris Karagiannis Alexiou Christou Pappas Angelopoulos Spanos"),
    ("Turkish",
     "Mehmet Ayse Mustafa Fatma Emre Zeynep Burak Elif Murat Esra Kemal Selin Can Deniz Serkan Ebru",
     "Yilmaz Kaya Demir Sahin Celik Yildiz Yildirim Ozturk Aydin Ozdemir Arslan Dogan Kilic Aslan Cetin Korkmaz"),
    ("Arabic",
     "Omar Fatima Ahmed Layla Youssef Mariam Khalid Noor Hassan Aisha Tariq Salma Karim Yasmin Samir Rania",
     "Haddad Khoury Mansour Nasser Saleh Hamdan Farouk Aziz Rahman Qasim Saad Khalil Darwish Bakr Shaheen Najjar"),
    ("Persian",
     "Reza Shirin Dariush Parisa Kourosh Nasrin Arash Leila Babak Mahsa Farhad Roya Behzad Niloufar Kamran Ziba",
     "Hosseini Ahmadi Mohammadi Rezaei Karimi Moradi Jafari Rahimi Sadeghi Ghasemi Kazemi Tehrani Najafi Farahani Abbasi Shirazi"),
    ("Israeli",
     "Avi Noa Yossi Tamar Eitan Shira Oren Yael Gil Maya Amir Michal Ronen Dana Ido Talia",
     "Cohen Levi Mizrahi Peretz Biton Friedman Avraham Azoulay BenDavid Katz Shapiro Golan Amsalem Dahan Gabay Ohana"),
    ("Hindi",
     "Rahul Priya Amit Anjali Vikram Pooja Arjun Neha Rohan Kavita Sanjay Deepika Rajesh Sunita Aditya Meera",
     "Sharma Verma Gupta Singh Kumar Patel Mehta Agarwal Joshi Malhotra Kapoor Chopra Saxena Bansal Pandey Mishra"),
    ("Tamil",
     "Karthik Lakshmi Arun Divya Suresh Kavya Senthil Anitha Murugan Revathi Prakash Meenakshi Vignesh Shalini Ganesh Priyanka",
     "Iyer Subramanian Krishnan Raman Natarajan Pillai Venkatesan Sundaram Chandran Rajagopal Balasubramanian Murthy Narayanan Srinivasan Ramasamy Selvam"),
    ("Bengali",
     "Arnab Riya Sourav Moumita Debashis Tania Anirban Shreya Partha Ananya Subhash Mithila Rajib Rupa Tanmoy Nandini",
     "Banerjee Chatterjee Mukherjee Ghosh Bose Das Sen Dutta Roy Chakraborty Sarkar Majumdar Bhattacharya Saha Mitra Paul"),
    ("Pakistani",
     "Imran Ayesha Bilal Sana Usman Hira Faisal Mahnoor Zain Amna Hamza Iqra Asad Nida Kashif Rabia",
     "Khan Malik Qureshi Chaudhry Butt Siddiqui Sheikh Raza Abbasi Mirza Hashmi Javed Aslam Iqbal Akhtar Rana"),
    ("Chinese",
     "Wei Mei Jun Li Hao Xiu Ming Yan Lei Fang Qiang Ling Jian Hui Tao Ying",
     "Wang Li Zhang Liu Chen Yang Huang Zhao Wu Zhou Xu Sun Ma Zhu Hu Guo"),
    ("Cantonese",
     "Ka-Wai Mei-Ling Chi-Ming Wing-Yan Kwok-Keung Siu-Fong Tak-Wah Suk-Yee Ho-Yin Wai-Man Kin-Fai Lai-Ying Chun-Kit Mei-Yee Hon-Ming Yuk-Lan",
     "Chan Wong Leung Cheung Lau Ho Ng Tsang Lam Yeung Chow Tang Kwan Fung Poon Yip"),
    ("Taiwanese",
     "Chia-Hao Yi-Ting Chun-Wei Shu-Fen Tzu-Yang Hsin-Yi Po-Han Ya-Ting Cheng-Yu Pei-Shan Kuan-Lin Wan-Ju Yu-Hsiang Hui-Chen Ming-Hsun Chia-Ling",
     "Lin Chang Huang Tsai Hsu Cheng Hsieh Kuo Hung Chiu Tseng Liao Lai Chou Yeh Su"),
    ("Japanese",
     "Hiroshi Yuki Takeshi Sakura Kenji Aiko Daisuke Haruka Kazuki Misaki Ryota Naomi Satoshi Emi Shota Yumi",
     "Sato Suzuki Takahashi Tanaka Watanabe Ito Yamamoto Nakamura Kobayashi Kato Yoshida Yamada Sasaki Matsumoto Inoue Kimura"),
    ("Korean",
     "Min-jun Seo-yeon Ji-hoon Ji-woo Hyun-woo Soo-ah Dong-hyun Ha-eun Sung-min Yu-na Jae-won Eun-ji Tae-yang Min-seo Joon-ho Da-eun",
     "Kim Lee Park Choi Jung Kang Cho Yoon Jang Lim Han Oh Seo Shin Kwon Hwang"),
    ("Vietnamese",
     "Minh Lan Tuan Hoa Duc Thao Quang Linh Hung Mai Long Huong Phong Ngoc Khanh Trang",
     "Nguyen Tran Le Pham Hoang Phan Vu Dang Bui Do Ho Ngo Duong Ly Truong Dinh"),
    ("Thai",
     "Somchai Malee Anan Siriporn Prasert Nattaya Chaiwat Pimchanok Somsak Kanya Wichai Ratana Kittisak Sunee Thanawat Pranee",
     "Saetang Srisuk Chaiyasit Wongsawat Boonmee Kaewkla Thongchai Sukprasert Rattanakul Phromma Chanthawong Intharasuk Suwannarat Jaidee Kongkaew Panyawong"),
    ("Filipino",
     "Jose Maricel Rodel Analyn Jomar Rowena Ariel Liezl Danilo Jocelyn Ramil Maribel Noel Cristina Rogelio Lorna",
     "Santos Reyes Cruz Bautista Mendoza Villanueva DelaCruz Ramos Aquino Castillo Navarro Soriano Manalo Pascual Dizon Ocampo"),
    ("Indonesian",
     "Budi Siti Agus Dewi Eko Sri Hendra Wulan Joko Ratna Rudi Intan Bambang Ayu Dedi Putri",
     "Santoso Wijaya Susanto Hidayat Saputra Gunawan Setiawan Kusuma Pratama Halim Nugroho Rahardjo Siregar Simanjuntak Wibowo Tanjung"),
    ("Malay",
     "Ahmad Nurul Hafiz Siti Azman Farah Rizal Aina Faizal Liyana Shahrul Izzati Syafiq Aishah Amirul Nadia",
     "Abdullah Ismail Ibrahim Hamzah Yusof Osman Rahman Salleh Hashim Zakaria Ali Aziz Harun Jaafar Mahmud Yaakob"),
    ("Yoruba",
     "Adebayo Folake Oluwaseun Funmilayo Babatunde Yetunde Olumide Bukola Ayodele Titilayo Kayode Adenike Tunde Morenike Femi Abimbola",
     "Adeyemi Oyelaran Adewale Ogunleye Balogun Akinola Ogunbiyi Adeleke Oladipo Fashola Ajayi Afolabi Olatunji Bamidele Okonjo Adebisi"),
    ("Igbo",
     "Chinedu Ngozi Emeka Chioma Obinna Adaeze Ikenna Nneka Chukwuemeka Amaka Uchenna Ifeoma Nnamdi Obiageli Kelechi Chiamaka",
     "Okafor Okonkwo Nwosu Eze Obi Nwankwo Chukwu Onyeka Uzoma Okeke Anyanwu Ibe Nnadi Ezeh Okoro Agu"),
    ("Ghanaian",
     "Kwame Akosua Kofi Ama Kwabena Abena Yaw Adwoa Kojo Efua Kwaku Afia Kwesi Yaa Fiifi Esi",
     "Mensah Owusu Boateng Asante Osei Agyeman Appiah Ofori Darko Amoah Addo Danquah Quaye Ansah Tetteh Frimpong"),
    ("Kenyan",
     "Wanjiru Kamau Achieng Otieno Njeri Kipchoge Wambui Mwangi Akinyi Kiprono Nyambura Omondi Chebet Kibet Moraa Mutua",
     "Odhiambo Kariuki Njoroge Wekesa Kimani Ouma Cheruiyot Ndungu Onyango Maina Rotich Wafula Gitau Korir Mugo Barasa"),
    ("Ethiopian",
     "Abebe Tigist Dawit Meron Yonas Hirut Tesfaye Selam Bekele Almaz Girma Rahel Solomon Mekdes Haile Bethlehem",
     "Tadesse Gebremariam Alemu Worku Kebede Haile Desta Mengistu Bekele Tesfaye Abebe Wolde Negash Ayele Girma Teshome"),
    ("South African",
     "Thabo Nomvula Sipho Lerato Mandla Thandiwe Pieter Annelie Bongani Zanele Johan Marike Themba Ayanda Riaan Lindiwe",
     "Nkosi Dlamini Ndlovu Khumalo Mokoena VanDerMerwe Botha Naidoo Mahlangu Zulu Pretorius Molefe Venter Sithole Radebe Coetzee"),
    ("Hawaiian",
     "Kai Leilani Keoni Malia Makoa Nalani Kekoa Noelani Ikaika Kalena Kainoa Mahina Koa Lani Nohea Healani",
     "Kahale Akana Kealoha Kamakau Kanoho Keawe Mahoe Nakoa Kahananui Kaleo Palakiko Kekumu Akamu Kalani Kapule Nohara"),
    ("Maori",
     "Tane Aroha Wiremu Mere Hemi Anahera Rawiri Moana Nikau Kiri Tamati Ngaio Manaia Huia Rangi Tui",
     "Ngata Parata Tamihana Walker Rewiti Horomona TeWhata Kereama Paewai Tipene Herewini Manuera Tuhoe Waaka Tautahi"),
    ("Samoan",
     "Sione Lupe Tavita Losa Mose Fetu Ioane Malia Faleolo Sina Paulo Leota Fuimaono Talia Iosefa Mele",
     "Tuilagi Faleafa Leavasa Toleafoa Aiono Sapolu Lealaiauloto Sopoaga Fonoti Tuiasosopo Masoe Pulu Vaifale Tauiliili Seiuli Moala"),
]

# A few players go by a single name or a nickname, as at a real card room.
NICKNAMES = [
    "Doc Holloway", "Slim Whitaker", "Lucky Lou", "Big Al Romero", "Tex Dawson", "Ace Malone",
    "Dutch Van Loon", "Red Callahan", "Sonny Vega", "Kid Kavanagh", "Cowboy Pruitt", "Duke Ellison",
]

USER_NAME = "Player 1"
PLAYERS = 1000
START_BANK = 10000


class Lcg:
    """A 64-bit linear congruential generator: fixed output on every platform."""

    def __init__(self, seed):
        self.state = seed & 0xFFFFFFFFFFFFFFFF

    def below(self, n):
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) & 0xFFFFFFFFFFFFFFFF
        return (self.state >> 33) % n


def spaced(name):
    # Compound family names are written joined in the lists above.
    for joined, spaced_name in (("DeJong", "de Jong"), ("DeVries", "de Vries"), ("VanDijk", "van Dijk"),
                                ("DeBoer", "de Boer"), ("DeLuca", "De Luca"), ("BenDavid", "Ben David"),
                                ("DelaCruz", "dela Cruz"), ("VanDerMerwe", "van der Merwe"),
                                ("TeWhata", "Te Whata")):
        if name == joined:
            return spaced_name
    return name


def computer_names(count):
    rng = Lcg(20240607)
    cultures = [(c, f.split(), s.split()) for c, f, s in CULTURES]
    names, seen = [], {USER_NAME}
    nicknames = list(NICKNAMES)
    turn = 0
    while len(names) < count:
        # Every culture in turn, so that any table and any field is mixed.
        if turn % 83 == 41 and nicknames:
            name = nicknames.pop(0)
        else:
            _, firsts, lasts = cultures[turn % len(cultures)]
            name = firsts[rng.below(len(firsts))] + " " + spaced(lasts[rng.below(len(lasts))])
        turn += 1
        if name in seen or '"' in name or ',' in name or len(name) > 20:
            continue
        seen.add(name)
        names.append(name)
    # Shuffle the seating so that neighbours come from different cultures
    # without a visible pattern (Fisher-Yates with the same generator).
    for i in range(len(names) - 1, 0, -1):
        j = rng.below(i + 1)
        names[i], names[j] = names[j], names[i]
    return names


def gamedata():
    lines = ["%d,0,1,100" % PLAYERS]
    lines.append('1,"%s",%d,0,1' % (USER_NAME, START_BANK))
    for position, name in enumerate(computer_names(PLAYERS - 1), start=2):
        # The tag is the position; the number is the position too, unique.
        lines.append('%d,"%s",%d,0,%d' % (position, name, START_BANK, position))
    return "\r\n".join(lines) + "\r\n"


def settings():
    return "2,#TRUE#,#TRUE#\r\n"


TIPS = [
    "The blinds follow the number of players left in the game, not the number of hands played or the time.",
    "Every game starts with blinds of $100 and $200. At a single table they stay there while more than 6 players are left and reach $1,000 and $2,000 when two are left.",
    "A player knocked out raises the blinds not for the next hand but for the one after it.",
    "Every player starts a game with $10,000 in chips.",
    "All bets, raises and blinds are made in steps of $100. The bet dialog refuses any other amount.",
    "When you raise, the amount you type is the raise on top of what you have to call.",
    "Bet Max in the bet dialog fills in the largest raise you can make: it puts all your chips in.",
    "Apart from the step of $100 there is no minimum bet or raise for you, and you may raise again whenever an opponent has raised after you.",
    "A computer player raises at most once on each street.",
    "Computer players judge their hands only by the cards they can see, and they have no memory of earlier hands.",
    "When a player is all in, the bets of the others above his stake go into side pots. A hand can have up to five pots.",
    "A tied pot is shared in whole hundreds. Any odd $100 go out one at a time to the tied players, whatever their seats.",
    "Click the pot to see how much each player has put in during the hand.",
    "An uncalled bet is not handed back first: it comes back to its owner as part of the amount paid.",
    "In a tournament every other table really plays a hand for each hand at your table.",
    "Tournaments of 80, 200 and 1,000 players are played on tables of eight. Tables are balanced and broken up until one final table remains.",
    "With sound on, you hear how many players have just been moved to your table.",
    "When a tournament is down to one table, the table shows Final Table! as each hand is dealt.",
    "Between hands, press Standings, or choose Standings in the Tourney menu at any time, to see every player in order, 25 to a page. Your own line is yellow.",
    "Choose View Floor in the Tourney menu to see every table of the tournament. Click a seat to see who sits there.",
    "On the casino floor your seat is yellow, computer players are red and a lone chip leader is blue. Seats without chips are dark.",
    "You can save a game between hands with Save or Save As in the File menu. During a hand they are disabled.",
    "Press Ctrl+S to save your game between hands, and Ctrl+O to open a saved game.",
    "Press Ctrl+N to start a new game: a single table of 8 players or a tournament of 80, 200 or 1,000.",
    "Press F1 for help, or choose Hold'em Rules in the Help menu to read the rules of the game.",
    "Buttons have access keys: hold Alt and press the underlined letter, such as Alt+C to call, Alt+B to bet or raise and Alt+D to deal.",
    "Once a game has been saved or opened, Save writes to the same file without asking.",
    "Opening a saved game deals its next hand at once, with the players and blinds as they were saved.",
    "Choose Fast, Medium or Slow under Speed in the Settings menu. The new pace applies at once, even in the middle of a hand.",
    "The speed you choose for a new game becomes the speed in the Settings menu as well.",
    "Turn the sound on or off with Sound in the Settings menu. Only the sounds at the end of a game always play.",
    "Your speed, sound and tip settings are kept for the next time you play.",
    "Switch these tips off with the check box below, or with Tip of the Day in the Settings menu.",
    "The first hand of a game is dealt at once. After that, press Deal to start each new hand.",
    "If you bust in the same hand as other players, you take the lowest of their places. Bust against the last opponent and you finish 2nd.",
    "With only two players in a hand, the small blind acts first before the flop.",
    "A game ends when you have no chips left, or when you hold them all.",
]


def tips():
    return "\r\n".join(TIPS) + "\r\n"


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "assets")
    os.makedirs(folder, exist_ok=True)
    for name, text in (("gamedata.dat", gamedata()), ("settings.dft", settings()), ("TIPOFDAY.TXT", tips())):
        with open(os.path.join(folder, name), "wb") as out:
            out.write(text.encode("ascii"))


if __name__ == "__main__":
    main()
