set -g _HIP_SAVEVERSION = '19.5.303'
out/alembic_cut.parm {
filename	[ 0	locks=0 ]	(	"$HIP/abc/cut.abc"	)
objectPath	[ 0	locks=0 ]	(	"/obj/geo1"	)
set -g ABCDIR = 'abcache'
filename	[ 0	locks=0 ]	(	"$HIP/abc/never.abc"	)
}
out/alembic_tex.parm {
filename	[ 0	locks=0 ]	(	"$HIP/abc/tex.$F4.abc"	)
missing_texture_color	[ 0	locks=0 ]	(	1	0	1	)
}
out/alembic_whole.parm {
objectPath	[ 0	locks=0 ]	(	"/obj/geo1"	)
filename	[ 0	locks=0 ]	(	"$HIP/$ABCDIR/whole.abc"	)
}
out/alembic_frames.parm {
filename	[ 0	locks=0 ]	(	"$HIP/abc/frames.$F4.abc"	)
}
